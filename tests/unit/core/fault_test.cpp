#include "core/fault.hpp"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>

#include "core/run_state.hpp"

namespace kolvar {
namespace {

TEST(Fault, CarriesFileLineAndText) {
    try {
        fail(FaultKind::type, "run/a.set", 12, "abc");
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.kind, FaultKind::type);
        EXPECT_EQ(fault.file, "run/a.set");
        EXPECT_EQ(fault.line, 12);
        EXPECT_EQ(fault.offending, "abc");
        return;
    }
    FAIL() << "no fault";
}

TEST(Fault, EveryKindHasWordsOfItsOwn) {
    std::set<std::string> words;
    for (int kind = 0; kind <= static_cast<int>(FaultKind::file_unwritable); ++kind) {
        words.insert(fault_text(static_cast<FaultKind>(kind)));
    }
    EXPECT_EQ(words.size(), static_cast<std::size_t>(FaultKind::file_unwritable) + 1);
    EXPECT_EQ(words.count("unknown fault"), 0U);
    EXPECT_STREQ(fault_text(FaultKind::division_by_zero), "division by zero");
    EXPECT_STREQ(Fault(FaultKind::overflow).what(), "overflow");
}

TEST(Guarded, ReportsAFaultAndGoesOn) {
    int reports = 0;
    int written = 0;
    guarded(
        [&] {
            written = 1;
            fail(FaultKind::overflow);
        },
        [&](const Fault& fault) {
            EXPECT_EQ(fault.kind, FaultKind::overflow);
            ++reports;
        });
    EXPECT_EQ(reports, 1);
    EXPECT_EQ(written, 1);
    guarded([&] { written = 2; }, [&](const Fault&) { ++reports; });
    EXPECT_EQ(reports, 1);
    EXPECT_EQ(written, 2);
}

TEST(Guarded, TheEndOfTheProgramPassesThrough) {
    int status = -1;
    int reports = 0;
    try {
        guarded([] { throw ProgramEnd{1}; }, [&](const Fault&) { ++reports; });
    } catch (const ProgramEnd& end) {
        status = end.status;
    }
    EXPECT_EQ(status, 1);
    EXPECT_EQ(reports, 0);
}

TEST(Guarded, WhatIsNoFaultPassesThrough) {
    int reports = 0;
    EXPECT_THROW(guarded([] { throw std::logic_error("broken"); }, [&](const Fault&) { ++reports; }), std::logic_error);
    EXPECT_EQ(reports, 0);
}

void inner(RunState& rs, bool broken) {
    Running running(rs, "ComputeBlank");
    EXPECT_STREQ(rs.procedure, "ComputeBlank");
    if (broken) fail(FaultKind::division_by_zero);
}

void outer(RunState& rs, bool broken) {
    Running running(rs, "AfterImport");
    inner(rs, broken);
    EXPECT_STREQ(rs.procedure, "AfterImport");
}

TEST(Running, NamesTheProcedureWhileItLives) {
    RunState rs;
    outer(rs, false);
    EXPECT_STREQ(rs.procedure, "");
}

TEST(Running, TheNameOfTheFaultyProcedureStandsAfterAFault) {
    RunState rs;
    guarded([&] { outer(rs, true); }, [&](const Fault&) { EXPECT_STREQ(rs.procedure, "ComputeBlank"); });
    EXPECT_STREQ(rs.procedure, "ComputeBlank");
}

struct Undone {
    RunState& rs;
    ~Undone() { Running running(rs, "restore_column"); }
};

TEST(Running, AProcedureThatRunsDuringTheFaultTakesItsNameBack) {
    RunState rs;
    guarded(
        [&] {
            Undone undone{rs};
            inner(rs, true);
        },
        [](const Fault&) {});
    EXPECT_STREQ(rs.procedure, "ComputeBlank");
}

}  // namespace
}  // namespace kolvar
