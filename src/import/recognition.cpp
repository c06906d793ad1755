#include "import/recognition.hpp"

#include <array>

namespace kolvar {

namespace {

struct Isotope {
    const char* element;
    const char* mass;
    int RunState::*column;
};

constexpr std::array<Isotope, 12> uranium_lead_isotopes{{
    {"Hg", "198", &RunState::ColHg198},
    {"Hg", "199", &RunState::ColHg199},
    {"Hg", "200", &RunState::ColHg200},
    {"Hg", "201", &RunState::ColHg201},
    {"Hg", "202", &RunState::ColHg202},
    {"Pb", "204", &RunState::ColPb204},
    {"Pb", "206", &RunState::ColPb206},
    {"Pb", "207", &RunState::ColPb207},
    {"Pb", "208", &RunState::ColPb208},
    {"Th", "232", &RunState::ColTh232},
    {"U", "235", &RunState::ColU235},
    {"U", "238", &RunState::ColU238},
}};

// What a slot of the FLEX catalogue fills: a role of the U/Pb path, or its place in the table of columns.
constexpr std::array<int RunState::*, 7> shared_roles{&RunState::ColU238,  &RunState::ColU235,  &RunState::ColTh232,
                                                      &RunState::ColPb208, &RunState::ColPb207, &RunState::ColPb206,
                                                      &RunState::ColPb204};

bool names(const Isotope& isotope, const std::string& head) {
    const std::string e = isotope.element;
    const std::string m = isotope.mass;
    return head == e + m || head == e + "-" + m || head == e + " " + m || head == m + e || head == m + "-" + e ||
           head == m + " " + e || head == e + m + "(LR)" || head == e + m + "(HR)";
}

// An unset slot is equal to an empty head.
bool names(const Value& slot, const std::string& head) { return slot.text() == head; }

void clear_roles(RunState& rs) {
    for (const Isotope& isotope : uranium_lead_isotopes) rs.*isotope.column = 0;
    rs.HgMass = 0;
}

}  // namespace

void RecogniseUPb(RunState& rs) {
    const Running running(rs, "RecogniseUPb");
    clear_roles(rs);
    for (int i = 1; i <= rs.nIso; ++i)
        for (const Isotope& isotope : uranium_lead_isotopes)
            if (names(isotope, rs.IsoName(i))) rs.*isotope.column = i;
    const std::array<int, 5> mercury{rs.ColHg198, rs.ColHg199, rs.ColHg200, rs.ColHg201, rs.ColHg202};
    for (std::size_t k = 0; k < mercury.size(); ++k) {
        if (mercury[k] <= 0) continue;
        rs.HgMass = 198 + static_cast<int>(k);
        rs.ColHg = mercury[k];
    }
}

void RecogniseFlex(RunState& rs) {
    const Running running(rs, "RecogniseFlex");
    clear_roles(rs);
    // The slots behind these keep the columns of the file before; nothing is calculated from them.
    for (int slot = 1; slot <= 5; ++slot) rs.FlexCol(slot) = "";
    for (int i = 1; i <= rs.nIso; ++i) {
        for (int slot = 1; slot <= MaxFlex; ++slot) {
            if (!names(rs.FlexIso(slot), rs.IsoName(i))) continue;
            if (slot <= static_cast<int>(shared_roles.size()))
                rs.*shared_roles[static_cast<std::size_t>(slot) - 1] = i;
            else
                rs.FlexCol(slot) = i;
        }
    }
}

std::vector<std::string> unrecognised_columns(const RunState& rs) {
    std::vector<std::string> out;
    for (int i = 1; i <= rs.nIso; ++i) {
        bool known = false;
        if (rs.Method == 1)
            for (const Isotope& isotope : uranium_lead_isotopes) known = known || names(isotope, rs.IsoName(i));
        if (rs.Method == 3)
            for (int slot = 1; slot <= MaxFlex; ++slot) known = known || names(rs.FlexIso(slot), rs.IsoName(i));
        if (!known) out.push_back(rs.IsoName(i));
    }
    return out;
}

}  // namespace kolvar
