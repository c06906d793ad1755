#include "trace/matching.hpp"

#include <string>

#include "core/numbers.hpp"

namespace kolvar {
namespace {

void assign_standard(RunState& rs, int i, int number) {
    const Limit& column = number == 1 ? rs.IS1col : number == 2 ? rs.IS2col : rs.IS3col;
    const Value& concentration = number == 1 ? rs.IS1conc : number == 2 ? rs.IS2conc : rs.IS3conc;
    const Value& error = number == 1 ? rs.IS1err : number == 2 ? rs.IS2err : rs.IS3err;
    rs.IsoISidx(i) = column.val();
    rs.IsoISconc(i) = concentration.val();
    rs.IsoISerr(i) = error.val();
}

// All digits of a head joined: "Hg198(LR)" is 198, "ThO248" is 248, a head without digits 0.
double mass_number(const std::string& head) {
    std::string digits;
    for (const char c : head)
        if (c >= '0' && c <= '9') digits += c;
    return Val(digits);
}

void assign_by_mass(RunState& rs, int i) {
    assign_standard(rs, i, 1);
    const double mass = mass_number(rs.IsoName(i));
    const double standards = rs.setISnum.val();
    if (standards > 1 && mass >= rs.setMas2.val()) assign_standard(rs, i, 2);
    if (standards == 3 && mass >= rs.setMass3.val()) assign_standard(rs, i, 3);
}

// A column whose element is in no row keeps the standard it had.
void assign_by_period(RunState& rs, int i) {
    for (int row = 1; row <= 96; ++row) {
        if (rs.PeriodSym(row).text() != rs.IsoElem(i)) continue;
        const std::string standard = rs.PeriodIS(row).text();
        if (standard == rs.IS1name) assign_standard(rs, i, 1);
        if (standard == rs.IS2name) assign_standard(rs, i, 2);
        if (standard == rs.IS3name) assign_standard(rs, i, 3);
    }
}

// The last equal row of each reference table is the one that counts.
void bind_references(RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.StdConc(i) = Mark::empty;
        rs.StdConcErr(i) = Mark::empty;
        for (int row = 1; row <= rs.nSTC; ++row) {
            if (rs.STCiso(row) != rs.IsoName(i) && rs.STCiso(row) != rs.IsoCanon(i)) continue;
            rs.StdConc(i) = rs.STCcc(row);
            rs.StdConcErr(i) = rs.STCerr(row);
        }
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.StdCps(i) = Mark::empty;
        rs.StdCpsErr(i) = Mark::empty;
        for (int row = 1; row <= rs.nSTM; ++row) {
            if (rs.STMiso(row) != rs.IsoName(i) && rs.STMiso(row) != rs.IsoCanon(i)) continue;
            rs.StdCps(i) = rs.STMcps(row);
            rs.StdCpsErr(i) = rs.STMsd(row);
        }
    }
    // The blank of a file is bound even when the blank will be taken from the data: until it is marked, this one
    // stands. Its names must equal the heads as they were read, and the s.d. of a column without a row stays.
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.BlkMean(i) = Mark::empty;
        for (int row = 1; row <= rs.nBLK; ++row) {
            if (rs.BLKiso(row) != rs.IsoName(i)) continue;
            rs.BlkMean(i) = rs.BLKmean(row);
            rs.BlkSD(i) = rs.BLKsd(row);
        }
    }
}

// Notes a column without a partner. False when it is the first internal standard, without which nothing goes on.
bool note_gap(Context& context, int i, std::string& missing, const std::string& file) {
    RunState& rs = context.rs;
    if (rs.IS1col.is_set() && rs.IS1col.val() == i) {
        context.os.warn("The selected internal standard (" + rs.IS1name + ") is not present in the " + file + ".");
        rs.RefsMatched = true;
        return false;
    }
    missing += rs.IsoName(i) + ",  ";
    rs.IsoOmit(i) = 1;
    return true;
}

// The lists of what is missing; false when the first internal standard is.
bool list_gaps(Context& context) {
    RunState& rs = context.rs;
    rs.MissSTC.clear();
    rs.MissSTM.clear();
    rs.MissBLK.clear();
    rs.MissDWE.clear();
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.IsoOmit(i) = 0;
        if (rs.StdConc(i).is_empty() && !note_gap(context, i, rs.MissSTC, "Standard Composition File")) return false;
        if (rs.StdCps(i).is_empty() && !note_gap(context, i, rs.MissSTM, "Standard Measurement File")) return false;
        if (rs.BlankFromData == 0 && rs.BlkMean(i).is_empty() && !note_gap(context, i, rs.MissBLK, "Blank File"))
            return false;
        // A missing dwell time alone omits nothing: the user may go on with the shortest one.
        if (rs.DwellFromFile == 1 && rs.Dwell(i).is_empty()) rs.MissDWE += rs.IsoName(i) + ",  ";
    }
    return true;
}

}  // namespace

void AssignInternalStandards(RunState& rs) {
    Running running(rs, "AssignInternalStandards");
    const double rule = rs.setPeriod.val();
    for (int i = 1; i <= rs.nIso; ++i) {
        if (rule == 0) assign_by_mass(rs, i);
        if (rule == 1) assign_by_period(rs, i);
    }
}

void MatchReferences(Context& context) {
    RunState& rs = context.rs;
    Running running(rs, "MatchReferences");
    if (!rs.RefsMatched) {
        bind_references(rs);
        if (!list_gaps(context)) return;
        if (rs.ModeData == 1 && !rs.MissDWE.empty()) {
            context.shell.open(context.forms.frm_Dwell);
            return;
        }
    }
    // Back from the window of the missing dwell times the lists stand as they are.
    rs.RefsMatched = false;
    const bool standard_gaps = !rs.MissSTC.empty() || !rs.MissSTM.empty();
    if (rs.ModeData == 1) {
        if (rs.BlankFromData == 0 && (standard_gaps || !rs.MissBLK.empty()))
            context.shell.open(context.forms.frm_MissingIso);
        if (rs.BlankFromData == 1 && standard_gaps) context.shell.open(context.forms.frm_MissingIso);
    }
    if (!standard_gaps && rs.MissBLK.empty()) context.shell.open(context.forms.frm2_Time);
}

}  // namespace kolvar
