#include "core/inspector.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <set>
#include <sstream>

#include "core/fault.hpp"
#include "support/test_support.hpp"

namespace kolvar {
namespace {

FaultKind kind_of(const std::function<void()>& work) {
    try {
        work();
    } catch (const Fault& fault) {
        return fault.kind;
    }
    ADD_FAILURE() << "no fault";
    return FaultKind::file_missing;
}

class Inspector : public ::testing::Test {
protected:
    RunState rs;
    Value get(const std::string& name, int i = 0, int j = 0) { return field_get(rs, name, i, j); }
    void put(const std::string& name, const Value& value, int i = 0, int j = 0) { field_put(rs, name, value, i, j); }
};

// The names that the headers of the run state declare.
std::set<std::string> declared_names() {
    std::set<std::string> out;
    for (const char* part : {"measurement", "intervals", "references", "settings_keys", "default_keys", "results",
                             "upb_results", "sequence"}) {
        std::string text = test::bytes_of(std::string(KOLVAR_SOURCE_DIR) + "/src/core/" + part + ".hpp");
        text = std::regex_replace(text, std::regex("//[^\n]*"), "");
        text = text.substr(text.find("struct "));
        text = text.substr(text.find('{') + 1, text.rfind("};") - text.find('{') - 1);
        text = std::regex_replace(text, std::regex("\\{[^}]*\\}|=[^,;]*|<[^>]*>"), "");
        // What is left of each declaration: a type, then names between commas.
        const std::regex declaration("([\\w:]+)\\s+([^;]*);");
        for (std::sregex_iterator at(text.begin(), text.end(), declaration), end; at != end; ++at) {
            const std::string names = (*at)[2];
            const std::regex word("\\w+");
            for (std::sregex_iterator name(names.begin(), names.end(), word); name != std::sregex_iterator(); ++name) {
                out.insert(name->str());
            }
        }
    }
    return out;
}

TEST_F(Inspector, KnowsEveryDeclaredFieldAndNothingElse) {
    const std::set<std::string> declared = declared_names();
    EXPECT_GT(declared.size(), 250U);
    std::set<std::string> known;
    for (const std::string& name : field_names()) known.insert(name);
    for (const std::string& name : declared) EXPECT_EQ(known.count(name), 1U) << name;
    for (const std::string& name : known) {
        if (name == "RatioName" || name == "RatioNames" || name == "RatioIso") continue;
        EXPECT_EQ(declared.count(name), 1U) << name;
    }
}

TEST_F(Inspector, TheShapeOfEveryTableIsTheOneItHas) {
    for (const std::string& name : field_names()) {
        const FieldShape shape = field_shape(name);
        ASSERT_TRUE(shape.known) << name;
        if (shape.dimensions == 0) {
            EXPECT_NO_THROW(get(name)) << name;
        } else if (shape.dimensions == 1) {
            EXPECT_NO_THROW(get(name, 0)) << name;
            EXPECT_NO_THROW(get(name, shape.last1)) << name;
            EXPECT_EQ(kind_of([&] { get(name, shape.last1 + 1); }), FaultKind::index) << name;
            EXPECT_EQ(kind_of([&] { get(name, -1); }), FaultKind::index) << name;
            EXPECT_EQ(kind_of([&] { put(name, Value(), shape.last1 + 1); }), FaultKind::index) << name;
        } else {
            EXPECT_NO_THROW(get(name, shape.last1, shape.last2)) << name;
            EXPECT_EQ(kind_of([&] { get(name, shape.last1 + 1, 0); }), FaultKind::index) << name;
            EXPECT_EQ(kind_of([&] { get(name, 0, shape.last2 + 1); }), FaultKind::index) << name;
            EXPECT_EQ(kind_of([&] { put(name, Value(), 0, shape.last2 + 1); }), FaultKind::index) << name;
        }
    }
}

TEST_F(Inspector, ShapesOfSomeKnownFields) {
    EXPECT_EQ(field_shape("nIso").dimensions, 0);
    EXPECT_EQ(field_shape("IsoName").dimensions, 1);
    EXPECT_EQ(field_shape("IsoName").last1, 100);
    EXPECT_EQ(field_shape("IsoOmit").last1, 6000);
    EXPECT_EQ(field_shape("STCcc").last1, 500);
    EXPECT_EQ(field_shape("Sig").dimensions, 2);
    EXPECT_EQ(field_shape("Sig").last1, 100);
    EXPECT_EQ(field_shape("Sig").last2, 6000);
    EXPECT_FALSE(field_shape("sig").known);
    EXPECT_FALSE(field_shape("").known);
    EXPECT_EQ(kind_of([&] { get("sig"); }), FaultKind::index);
}

// A value that every kind of cell takes comes back from every field, and nothing but that field has changed.
TEST_F(Inspector, WhatIsPutIntoAnyFieldIsReadBack) {
    for (const std::string& name : field_names()) {
        const FieldShape shape = field_shape(name);
        const int i = shape.last1;
        const int j = shape.last2;
        put(name, 1, i, j);
        EXPECT_NE(get(name, i, j).number(), 0.0) << name;
        put(name, Value(), i, j);
        EXPECT_EQ(get(name, i, j).number(), 0.0) << name;
    }
}

// What the user's documents name, with the highest index of each table: a name that is lost or misspelled here is one
// that no scenario can ask for any more.
struct Named {
    const char* names;  // between blanks
    int dimensions = 0, last1 = 0, last2 = 0;
};
constexpr Named named[] = {
    {"Method DataFileName DataFilePath nIso nSlices PrevSlices DwellUniform"},
    {"IsoName IsoElem IsoCanon Dwell", 1, 100},
    {"Sig Sig2 BLKraw", 2, 100, 6000},
    {"IsoOmit RejFlag Rat68 Rat75 Rat82 Rat382 Rat76 Sig204Net", 1, 6000},
    {"ColHg198 ColHg199 ColHg200 ColHg201 ColHg202 ColHg HgMass ColPb204 ColPb206 ColPb207 ColPb208 ColTh232 ColU235 "
     "ColU238"},
    {"FlexIso FlexCol", 1, 15},
    {"setISnum IS1name IS1col IS1conc IS1err IS2name IS2col IS2conc IS2err IS3name IS3col IS3conc IS3err"},
    {"IsoISidx IsoISconc IsoISerr", 1, 100},
    {"nSTC STCtitle STCfileName STCfilePath nSTM STMfileName STMfilePath nBLK BLKfileName BLKfilePath nBLKraw nDWE "
     "DWEtitle DWEfileName DWEfilePath"},
    {"STCiso STCcc STCerr", 1, 500},
    {"STMiso STMcps STMsd BLKiso BLKmean BLKsd DWEiso DWEms", 1, 100},
    {"StdConc StdConcErr StdCps StdCpsErr BlkMean BlkSD", 1, 100},
    {"MissSTC MissSTM MissBLK MissDWE"},
    {"ModeData ModeCreateSTM ModeCreateBLK BlankFromData DwellFromFile"},
    {"SelLow SelUpp SelN SelNGood SelLowX SelUppX BlkLow BlkUpp BlkN BlkLowX BlkUppX FormerLow FormerUpp FormerLowX "
     "FormerUppX FormerBlkLow FormerBlkUpp BeamStart"},
    {"SettingsName SettingsPath SetFilePath LineBuf TokenBuf WorkPath AppPath1 AppPath2 Lambda238 Lambda235"},
    {"GrubbsP10 GrubbsP7_5 GrubbsP5 GrubbsP2_5 GrubbsP1", 1, 100},
    {"StudentT1 StudentT2 StudentT3 StudentT4 StudentT5 StudentT6", 1, 101},
    {"SelCount CurvesShown KeepData RefsMatched HgChosen RejProcName RatioScale RejectOn ShowFirst WaitBeamStart "
     "SeqMode SeqPhase setPasteDat PlotState PlotOn AutoScale1 AutoScale2 setBzzPlot setBzzMethod setFormer_Sel"},
    {"CurveOn", 1, 50},
    {"setRatioShow setRatBLK", 1, 6},
    {"setMineral", 1, 10},
    {"ratioName", 1, 12},
    {"PeriodSym PeriodIS", 1, 99},
    {"Std_Name Std_Abbr Std_U Std_Th Std_Pb Std_68 Std_75 Std_82 Std_76 Std_Age", 1, 30},
    {"Std_Er", 2, 8, 30},
    {"setCSVisoLINE setCSVdatLINE setCSVfirstCOL setTXTisoLINE setTXTdatLINE setTXTfirstCOL setXLisoLINE setXLdatLINE "
     "setXLfirstCOL setXXXXXisoLINE setXXXXXdatLINE setXXXXXfirstCOL setYYYYYisoLINE setYYYYYdatLINE setYYYYYfirstCOL "
     "setZZZZZisoLINE setZZZZZdatLINE setZZZZZfirstCOL setCPS_IS setIS_Dwell setDWEfile_IS setSTCfile_IS"},
    {"Mean68 Mean75 Mean82 Mean382 Mean76 Med68 Med75 Med82 Med382 Med76 SD68 SD75 SD82 SD382 SD76 Err68 Err75 Err82 "
     "Err382 Err76"},
};

TEST_F(Inspector, EveryNameOfStartUpAndImportIsKnownWithItsLimits) {
    for (const Named& group : named) {
        std::istringstream names(group.names);
        for (std::string name; names >> name;) {
            const FieldShape shape = field_shape(name);
            EXPECT_TRUE(shape.known) << name;
            EXPECT_EQ(shape.dimensions, group.dimensions) << name;
            EXPECT_EQ(shape.last1, group.last1) << name;
            EXPECT_EQ(shape.last2, group.last2) << name;
        }
    }
}

TEST_F(Inspector, IsTheRunStateItself) {
    rs.nIso = 3;
    rs.Sig(3, 120) = 2.5;
    rs.IsoName(2) = "Si29";
    EXPECT_TRUE(get("nIso") == Value(3));
    EXPECT_TRUE(get("Sig", 3, 120) == Value(2.5));
    EXPECT_TRUE(get("IsoName", 2) == Value("Si29"));
    put("nSlices", 7);
    put("Sig", 1.25, 1, 2);
    put("WorkPath", "kit");
    EXPECT_EQ(rs.nSlices, 7);
    EXPECT_EQ(rs.Sig(1, 2), 1.25);
    EXPECT_EQ(rs.WorkPath, "kit");
}

TEST_F(Inspector, AnUnmarkedLimitShowsAnEmptyText) {
    EXPECT_TRUE(get("SelLow") == Value(""));
    put("SelLow", 12);
    EXPECT_TRUE(rs.SelLow == Limit(12));
    EXPECT_TRUE(get("SelLow") == Value(12));
    put("SelLow", "");
    EXPECT_FALSE(rs.SelLow.is_set());
    put("SelLow", 0);
    EXPECT_TRUE(get("SelLow") == Value(0));
    put("SelLow", Value());
    EXPECT_FALSE(rs.SelLow.is_set());
    put("SelLow", "5");
    EXPECT_TRUE(rs.SelLow == Limit(5));
    EXPECT_EQ(kind_of([&] { put("SelLow", "first"); }), FaultKind::type);
}

TEST_F(Inspector, CellsTakeNumbersAndMarkers) {
    EXPECT_TRUE(get("StdConc", 1).is_unset());
    put("StdConc", "", 1);
    EXPECT_EQ(rs.StdConc(1).mark, Mark::empty);
    EXPECT_TRUE(get("StdConc", 1) == Value(""));
    put("StdConc", "---", 1);
    EXPECT_EQ(rs.StdConc(1).mark, Mark::dashes);
    EXPECT_TRUE(get("StdConc", 1) == Value("---"));
    put("ConcT", "XX", 2, 30);
    EXPECT_EQ(rs.ConcT(2, 30).mark, Mark::xx);
    EXPECT_TRUE(get("ConcT", 2, 30) == Value("XX"));
    put("StdConc", "12.5", 1);
    EXPECT_TRUE(rs.StdConc(1) == Cell(12.5));
    put("StdConc", 3, 1);
    EXPECT_TRUE(get("StdConc", 1) == Value(3));
    put("StdConc", Value(), 1);
    EXPECT_TRUE(get("StdConc", 1).is_unset());
    EXPECT_EQ(kind_of([&] { put("StdConc", "much", 1); }), FaultKind::type);
}

TEST_F(Inspector, FreeValuesKeepTheirKind) {
    EXPECT_TRUE(get("setSD_IS").is_unset());
    for (const Value& value : {Value(3), Value("3"), Value(""), Value(true), Value()}) {
        put("setSD_IS", value);
        EXPECT_TRUE(get("setSD_IS") == value);
    }
    put("LoD", "0.00040", 4);
    EXPECT_TRUE(rs.LoD(4) == Value("0.00040"));
}

TEST_F(Inspector, TrueIsMinusOneInACounterAndTrueInAFlag) {
    put("ModeData", true);
    EXPECT_EQ(rs.ModeData, -1);
    put("KeepData", true);
    EXPECT_TRUE(rs.KeepData);
    EXPECT_TRUE(get("KeepData") == Value(true));
    put("KeepData", 0);
    EXPECT_FALSE(rs.KeepData);
    put("KeepData", 1);
    EXPECT_TRUE(rs.KeepData);
    put("KeepData", Value());
    EXPECT_FALSE(rs.KeepData);
    put("CurveOn", true, 50);
    EXPECT_TRUE(rs.CurveOn(50));
}

TEST_F(Inspector, ATextInACounterIsATypeFaultAndChangesNothing) {
    rs.nIso = 5;
    EXPECT_EQ(kind_of([&] { put("nIso", "five"); }), FaultKind::type);
    EXPECT_EQ(rs.nIso, 5);
    put("nIso", "6");
    EXPECT_EQ(rs.nIso, 6);
    put("nIso", 2.5);
    EXPECT_EQ(rs.nIso, 2);
    put("DwellUniform", "0.02");
    EXPECT_EQ(rs.DwellUniform, 0.02);
}

TEST_F(Inspector, RejectionFlagsAreSmallNumbers) {
    put("Rej", 1, 2, 3);
    EXPECT_EQ(rs.Rej(2, 3), 1);
    EXPECT_TRUE(get("Rej", 2, 3) == Value(1));
    EXPECT_EQ(kind_of([&] { put("Rej", 256, 2, 3); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([&] { put("Rej", -1, 2, 3); }), FaultKind::overflow);
}

TEST_F(Inspector, TextFieldsTakeNumbersByTheirDecimalForm) {
    put("RejProcName", 2.5);
    EXPECT_EQ(rs.RejProcName, "2.5");
    put("RejProcName", Value());
    EXPECT_EQ(rs.RejProcName, "");
}

TEST_F(Inspector, TheTablesOfTheRatioPanelAnswerToTheirOtherNames) {
    put("RatioNames", "Si29", 2);
    EXPECT_TRUE(rs.ratioName(2) == Value("Si29"));
    EXPECT_TRUE(get("RatioName", 2) == Value("Si29"));
    put("RatioIso", 4, 11);
    EXPECT_EQ(rs.RatioCol(11), 4);
}

}  // namespace
}  // namespace kolvar
