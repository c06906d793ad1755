#include "core/records.hpp"

#include <gtest/gtest.h>

#include <functional>

#include "core/fault.hpp"

namespace kolvar {
namespace {

std::vector<Value> fields_of(const std::string& text) {
    RecordReader reader(text, "a.stc");
    std::vector<Value> out;
    while (!reader.at_end()) out.push_back(reader.field());
    return out;
}

using Fields = std::vector<Value>;

Fault fault_of(const std::function<void()>& work) {
    try {
        work();
    } catch (const Fault& fault) {
        return fault;
    }
    ADD_FAILURE() << "no fault";
    return Fault(FaultKind::file_missing);
}

TEST(RecordReader, FieldsRunAcrossLines) {
    const Fields four = {Value("Si29"), Value(1.5), Value("Ca43"), Value(2)};
    EXPECT_EQ(fields_of("\"Si29\",1.5\r\n\"Ca43\",2\r\n"), four);
    EXPECT_EQ(fields_of("\"Si29\"\n1.5\n\"Ca43\"\n2"), four);
    EXPECT_EQ(fields_of("\"Si29\",1.5,\"Ca43\",2"), four);
    EXPECT_EQ(fields_of("\"Si29\"\r1.5\r\"Ca43\",2\r"), four);
}

TEST(RecordReader, AQuotedFieldMayHoldCommasAndLineEnds) {
    EXPECT_EQ(fields_of("\"a, b\",1"), (Fields{Value("a, b"), Value(1)}));
    EXPECT_EQ(fields_of("\"a\r\nb\rc\nd\",1"), (Fields{Value("a\r\nb\rc\nd"), Value(1)}));
    EXPECT_EQ(fields_of("\" 5\""), (Fields{Value(" 5")}));
    EXPECT_EQ(fields_of("\"\",2"), (Fields{Value(""), Value(2)}));
}

TEST(RecordReader, ABareFieldLosesItsBlanksAndKeepsTheInnerOnes) {
    EXPECT_EQ(fields_of("  Si 29 \t, 1.5 ,\tx"), (Fields{Value("Si 29"), Value(1.5), Value("x")}));
    EXPECT_EQ(fields_of("  \"a\"  ,  \"b\"  \r\n"), (Fields{Value("a"), Value("b")}));
    EXPECT_EQ(fields_of("it\"s,1"), (Fields{Value("it\"s"), Value(1)}));
}

TEST(RecordReader, ABareNumericFieldIsANumberAndAnyOtherAText) {
    EXPECT_EQ(fields_of("1,-2.5,1e3,.5,+4"), (Fields{Value(1), Value(-2.5), Value(1000), Value(0.5), Value(4)}));
    EXPECT_EQ(fields_of("29Si,1 2,1e,0x10,nan"),
              (Fields{Value("29Si"), Value("1 2"), Value("1e"), Value("0x10"), Value("nan")}));
    EXPECT_EQ(fields_of("\"1\""), (Fields{Value("1")}));
}

TEST(RecordReader, BooleansCountAsMinusOneAndZero) {
    EXPECT_EQ(fields_of("#TRUE#,#FALSE#, #TRUE# "), (Fields{Value(-1), Value(0), Value(-1)}));
    EXPECT_EQ(fields_of("\"#TRUE#\""), (Fields{Value("#TRUE#")}));
}

TEST(RecordReader, NothingBetweenTheCommasIsUnset) {
    EXPECT_EQ(fields_of("1,,2"), (Fields{Value(1), Value(), Value(2)}));
    EXPECT_EQ(fields_of(",\"key\"\r\n"), (Fields{Value(), Value("key")}));
    EXPECT_EQ(fields_of("1, ,2"), (Fields{Value(1), Value(), Value(2)}));
}

TEST(RecordReader, ACommaBeforeALineEndMakesOneEmptyField) {
    EXPECT_EQ(fields_of("1,\r\n2"), (Fields{Value(1), Value(), Value(2)}));
    EXPECT_EQ(fields_of("1,\n"), (Fields{Value(1), Value()}));
    EXPECT_EQ(fields_of("1,"), (Fields{Value(1), Value()}));
    EXPECT_EQ(fields_of("\"a\",\r\n\r\n"), (Fields{Value("a"), Value()}));
}

TEST(RecordReader, AnEmptyLineBetweenTwoOthersIsAnEmptyField) {
    EXPECT_EQ(fields_of("1\r\n\r\n2"), (Fields{Value(1), Value(), Value(2)}));
}

TEST(RecordReader, TrailingEmptyLinesAreNoFields) {
    EXPECT_EQ(fields_of("1,2\r\n\r\n  \r\n\t\n"), (Fields{Value(1), Value(2)}));
    EXPECT_EQ(fields_of(""), Fields{});
    EXPECT_EQ(fields_of("\r\n \n"), Fields{});
}

TEST(RecordReader, TooFewFieldsAreAFaultWithFileAndLine) {
    RecordReader reader("1,2\r\n3\r\n\r\n", "kit/a.stc");
    for (int i = 0; i < 3; ++i) reader.field();
    EXPECT_TRUE(reader.at_end());
    const Fault fault = fault_of([&] { reader.field(); });
    EXPECT_EQ(fault.kind, FaultKind::end_of_file);
    EXPECT_EQ(fault.file, "kit/a.stc");
    EXPECT_EQ(fault.line, 3);
}

TEST(RecordReader, AFileThatEndsInsideAQuotedFieldIsAFault) {
    RecordReader reader("1\r\n\"Si29,2\r\n3,4\r\n", "a.stc");
    reader.field();
    const Fault fault = fault_of([&] { reader.field(); });
    EXPECT_EQ(fault.kind, FaultKind::end_of_file);
    EXPECT_EQ(fault.line, 2);
    EXPECT_EQ(fault_of([] { RecordReader("\"", "a").field(); }).kind, FaultKind::end_of_file);
}

TEST(RecordReader, WhatFollowsAClosingQuoteBelongsToNoField) {
    EXPECT_EQ(fields_of("\"a\"b,1"), (Fields{Value("a"), Value(1)}));
}

TEST(RecordReader, QuotedAndBareNumbersAreEqualWhereANumberIsWanted) {
    RecordReader reader("\"1\",1,\"2.5 ppm\",abc,,#TRUE#,\"\"", "a.stc");
    EXPECT_EQ(reader.number_field(), 1.0);
    EXPECT_EQ(reader.number_field(), 1.0);
    EXPECT_EQ(reader.number_field(), 2.5);
    EXPECT_EQ(reader.number_field(), 0.0);
    EXPECT_EQ(reader.number_field(), 0.0);
    EXPECT_EQ(reader.number_field(), -1.0);
    EXPECT_EQ(reader.number_field(), 0.0);
}

TEST(RecordReader, ANumberBeyondTheRangeIsAFaultAtItsLine) {
    for (const char* text : {"1\n1e999\n", "1\n\"1e999\"\n", "1\n\"1e999 cps\"\n"}) {
        RecordReader reader(text, "a.stm");
        reader.field();
        const Fault fault = fault_of([&] { reader.number_field(); });
        EXPECT_EQ(fault.kind, FaultKind::overflow) << text;
        EXPECT_EQ(fault.file, "a.stm") << text;
        EXPECT_EQ(fault.line, 2) << text;
    }
}

TEST(RecordReader, TextFieldsOfNumbersAreTheirDecimalForm) {
    RecordReader reader("1.50,abc,", "a.stc");
    EXPECT_EQ(reader.text_field(), "1.5");
    EXPECT_EQ(reader.text_field(), "abc");
    EXPECT_EQ(reader.text_field(), "");
}

TEST(RecordReader, AVerbatimFieldIsNoNumberThoughItLooksLikeOne) {
    RecordReader reader(" 2024.10 ,007\r\n#TRUE#,\"1e999\" x,1e999,\n", "start_path");
    for (const char* expected : {"2024.10", "007", "#TRUE#", "1e999", "1e999", ""})
        EXPECT_EQ(reader.verbatim_field(), expected);
    EXPECT_TRUE(reader.at_end());
    EXPECT_EQ(fault_of([&] { reader.verbatim_field(); }).kind, FaultKind::end_of_file);
}

TEST(RecordReader, ALineIsHandedOutAsItStands) {
    RecordReader reader(" a, \"b\" \r\n\r\n1,2\rrest", "grubbs.dat");
    EXPECT_EQ(reader.line(), " a, \"b\" ");
    EXPECT_EQ(reader.line(), "");
    EXPECT_EQ(reader.number_field(), 1.0);
    EXPECT_EQ(reader.line(), "2");
    EXPECT_EQ(reader.line(), "rest");
    EXPECT_TRUE(reader.at_end());
    EXPECT_EQ(fault_of([&] { reader.line(); }).kind, FaultKind::end_of_file);
    EXPECT_EQ(fault_of([] { RecordReader("", "a").line(); }).kind, FaultKind::end_of_file);
}

TEST(RecordReader, TheLineOfAFaultCountsTheLinesInsideQuotes) {
    RecordReader reader("\"a\r\nb\rc\nd\"\r\n1e999", "a.stc");
    reader.field();
    EXPECT_EQ(fault_of([&] { reader.field(); }).line, 5);
}

TEST(RecordReader, ManyEmptyLinesAreReadInOneRun) {
    const std::string text(500000, '\n');
    EXPECT_EQ(fields_of(text + "1").size(), 500001U);
}

TEST(RecordWriter, WritesTheStrictForm) {
    RecordWriter writer;
    writer.field("Si29").field(1.5).field(0.02 * 1000);
    writer.end_record();
    writer.field(5.12E-6).field("").field(Value()).field(true).field(false);
    writer.end_record();
    EXPECT_EQ(writer.bytes(), "\"Si29\",1.5,20\r\n0.00000512,\"\",,#TRUE#,#FALSE#\r\n");
}

TEST(RecordWriter, ABooleanReadsBackAsItsNumber) {
    RecordWriter writer;
    writer.field(true).field(false);
    writer.end_record();
    EXPECT_EQ(fields_of(writer.bytes()), (Fields{Value(-1), Value(0)}));
}

TEST(RecordWriter, ADoubleQuoteInsideATextBecomesAnApostrophe) {
    RecordWriter writer;
    writer.field("a \"b\" c");
    writer.end_record();
    EXPECT_EQ(writer.bytes(), "\"a 'b' c\"\r\n");
}

TEST(RecordWriter, ATextThatHoldsCrKeepsIt) {
    RecordWriter writer;
    writer.field("a\rb");
    writer.end_record();
    EXPECT_EQ(writer.bytes(), "\"a\rb\"\r\n");
}

TEST(RecordWriter, AnUnsetFirstFieldLeavesItsComma) {
    RecordWriter writer;
    writer.field(Value()).field("setCSVisoLINE");
    writer.end_record();
    EXPECT_EQ(writer.bytes(), ",\"setCSVisoLINE\"\r\n");
}

TEST(RecordWriter, WhatIsWrittenReadsBack) {
    RecordWriter writer;
    const Fields fields = {Value("a, b\r\nc"), Value(-0.1), Value(""), Value(), Value("12"), Value(12)};
    for (const Value& value : fields) writer.field(value);
    writer.end_record();
    EXPECT_EQ(fields_of(writer.bytes()), fields);
}

}  // namespace
}  // namespace kolvar
