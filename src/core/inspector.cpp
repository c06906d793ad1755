#include "core/inspector.hpp"

#include <limits>
#include <map>
#include <string_view>

#include "core/inspector_fields.hpp"
#include "core/numbers.hpp"

namespace kolvar {
namespace inspection {

Value shown(int cell) { return cell; }
Value shown(double cell) { return cell; }
Value shown(bool cell) { return cell; }
Value shown(std::uint8_t cell) { return static_cast<int>(cell); }
Value shown(const std::string& cell) { return cell; }
Value shown(const Limit& cell) { return cell.is_set() ? Value(cell.val()) : Value(""); }
Value shown(const Cell& cell) { return cell.value(); }
Value shown(const Value& cell) { return cell; }

void take(int& cell, const Value& value) { cell = value.whole(); }
void take(double& cell, const Value& value) { cell = value.number(); }
void take(bool& cell, const Value& value) { cell = value.number() != 0.0; }

void take(std::uint8_t& cell, const Value& value) {
    const int whole = value.whole();
    if (whole < 0 || whole > std::numeric_limits<std::uint8_t>::max()) fail(FaultKind::overflow);
    cell = static_cast<std::uint8_t>(whole);
}

void take(std::string& cell, const Value& value) { cell = value.text(); }

void take(Limit& cell, const Value& value) {
    if (value.is_unset() || value == Value("")) {
        cell.clear();
    } else {
        cell = value.whole();
    }
}

void take(Cell& cell, const Value& value) {
    if (value.is_unset()) {
        cell = Cell();
    } else if (value == Value("")) {
        cell = Mark::empty;
    } else if (value == Value("---")) {
        cell = Mark::dashes;
    } else if (value == Value("XX")) {
        cell = Mark::xx;
    } else {
        cell = value.number();
    }
}

void take(Value& cell, const Value& value) { cell = value; }

}  // namespace inspection

namespace {

using inspection::FieldEntry;
using FieldIndex = std::map<std::string_view, const FieldEntry*>;

FieldIndex indexed() {
    FieldIndex out;
    for (const auto part : {inspection::measurement_fields(), inspection::interval_fields(),
                            inspection::reference_fields(), inspection::settings_fields(), inspection::default_fields(),
                            inspection::result_fields(), inspection::upb_fields(), inspection::sequence_fields()}) {
        for (const FieldEntry& entry : part) out.emplace(entry.name, &entry);
    }
    // Two tables of the ratio panel that also go by other names.
    out.emplace("RatioName", out.at("ratioName"));
    out.emplace("RatioNames", out.at("ratioName"));
    out.emplace("RatioIso", out.at("RatioCol"));
    return out;
}

const FieldIndex& fields() {
    static const FieldIndex index = indexed();
    return index;
}

const FieldEntry& entry_of(const std::string& name) {
    const auto found = fields().find(name);
    if (found == fields().end()) fail(FaultKind::index, {}, 0, name);
    return *found->second;
}

}  // namespace

FieldShape field_shape(const std::string& name) {
    const auto found = fields().find(name);
    return found == fields().end() ? FieldShape() : found->second->shape;
}

Value field_get(const RunState& rs, const std::string& name, int i, int j) { return entry_of(name).get(rs, i, j); }

void field_put(RunState& rs, const std::string& name, const Value& value, int i, int j) {
    entry_of(name).put(rs, value, i, j);
}

std::vector<std::string> field_names() {
    std::vector<std::string> out;
    out.reserve(fields().size());
    for (const auto& [name, entry] : fields()) out.emplace_back(name);
    return out;
}

}  // namespace kolvar
