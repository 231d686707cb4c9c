// What report descriptors declare: rows of items in hex and the lengths that come of them.

#include "platform/linux/ReportDescriptor.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "station/NamedRow.h"
#include "station/RigStation.h"

namespace glidetrak {
namespace {

struct DescriptorRow : NamedRow {
  std::string sHex;
  int iInput;
  int iOutput;
  bool bNumbered = false;
};

class Descriptor : public testing::TestWithParam<DescriptorRow> {};

TEST_P(Descriptor, DeclaresItsLengths) {
  const DescriptorRow& row = GetParam();
  const ReportLayout layout =
      ParseReportDescriptor(QByteArray::fromHex(QByteArray::fromStdString(row.sHex)));
  EXPECT_EQ(layout.lengths.iInput, row.iInput);
  EXPECT_EQ(layout.lengths.iOutput, row.iOutput);
  EXPECT_EQ(layout.bNumbered, row.bNumbered);
}

// 75 report size, 95 report count, 85 report id, 81 input, 91 output, B1 feature.
INSTANTIATE_TEST_SUITE_P(
    Whole, Descriptor,
    testing::Values(
        DescriptorRow{"Empty", "", 0, 0},
        DescriptorRow{"SixtyFourBytesBothWays",
                      "06 00FF 09 01 A1 01 15 00 26 FF00 75 08 95 40 09 01 81 02 09 01 91 02 C0",
                      65, 65},
        DescriptorRow{"OutputOnly", "A1 01 75 08 95 13 91 02 C0", 0, 20},
        DescriptorRow{"InputOnly", "A1 01 75 08 95 04 81 02 C0", 5, 0},
        DescriptorRow{"OneByte", "75 08 95 01 81 02 91 02", 2, 2},
        DescriptorRow{"NothingButUsages", "05 01 09 06 19 E0 29 E7 15 00 25 01", 0, 0},
        DescriptorRow{"FeatureReportsDoNotCount", "75 08 95 40 B1 02", 0, 0},
        DescriptorRow{"CollectionsDoNotCount", "75 08 95 40 A1 01 C0", 0, 0},
        DescriptorRow{"FieldsAddUp", "75 08 95 02 81 02 95 03 81 02 91 02", 6, 4},
        DescriptorRow{"ConstantFieldsCount", "75 01 95 03 81 02 75 05 95 01 81 01", 2, 0}),
    RowName());

INSTANTIATE_TEST_SUITE_P(Bits, Descriptor,
                         testing::Values(DescriptorRow{"OneBitIsAByte", "75 01 95 01 81 02", 2, 0},
                                         DescriptorRow{"SevenBits", "75 01 95 07 81 02", 2, 0},
                                         DescriptorRow{"EightBits", "75 01 95 08 81 02", 2, 0},
                                         DescriptorRow{"NineBits", "75 01 95 09 81 02", 3, 0},
                                         DescriptorRow{"RoundedAtTheEndOfTheReport",
                                                       "75 01 95 04 81 02 75 01 95 04 81 02", 2, 0},
                                         DescriptorRow{"FiveTimesTwelveBits", "75 0C 95 05 91 02",
                                                       0, 9},
                                         DescriptorRow{"NoSizeYet", "95 40 81 02", 0, 0},
                                         DescriptorRow{"NoCountYet", "75 08 81 02", 0, 0},
                                         DescriptorRow{"CountOfZero", "75 08 95 00 81 02", 0, 0},
                                         DescriptorRow{"SizeOfZero", "75 00 95 40 81 02", 0, 0}),
                         RowName());

INSTANTIATE_TEST_SUITE_P(
    ReportIds, Descriptor,
    testing::Values(
        DescriptorRow{"OneId", "85 01 75 08 95 40 81 02 91 02", 65, 65, true},
        DescriptorRow{"TheLongestOfSeveral",
                      "85 01 75 08 95 02 81 02 85 02 95 09 81 02 85 03 95 05 81 02", 10, 0, true},
        DescriptorRow{"LongestInputAndOutputOfDifferentIds",
                      "75 08 85 01 95 03 81 02 95 08 91 02 85 02 95 06 81 02 95 01 91 02", 7, 9,
                      true},
        DescriptorRow{"AnIdTakenUpAgainGoesOn",
                      "75 08 85 01 95 02 81 02 85 02 95 03 81 02 85 01 95 02 81 02", 5, 0, true},
        DescriptorRow{"EachIdRoundsByItself", "75 01 95 04 85 01 81 02 85 02 81 02", 2, 0, true},
        DescriptorRow{"AnIdAloneIsNumbered", "85 07", 0, 0, true}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    PushAndPop, Descriptor,
    testing::Values(
        DescriptorRow{"PopBringsSizeAndCountBack", "75 08 95 04 A4 75 01 95 01 B4 81 02", 5, 0},
        DescriptorRow{"PopBringsTheIdBack", "75 08 95 01 85 01 A4 85 02 B4 81 02 95 02 81 02", 4, 0,
                      true},
        DescriptorRow{"PushKeepsTheValues", "75 08 95 04 A4 81 02", 5, 0},
        DescriptorRow{"Nested", "75 08 95 01 A4 95 02 A4 95 03 81 02 B4 81 02 B4 81 02", 7, 0},
        DescriptorRow{"PopWithoutPush", "75 08 95 04 B4 81 02", 5, 0},
        DescriptorRow{"PopTakesNoFieldBack", "75 08 95 04 A4 81 02 B4 81 02", 9, 0}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    LongItems, Descriptor,
    testing::Values(DescriptorRow{"PassedOver", "75 08 FE 03 F0 AABBCC 95 04 81 02", 5, 0},
                    DescriptorRow{"WithItemsInTheirData", "75 08 95 04 FE 02 F0 81 02 91 02", 0, 5},
                    DescriptorRow{"Empty", "75 08 FE 00 F0 95 04 81 02", 5, 0},
                    DescriptorRow{"CutInItsHead", "75 08 95 04 81 02 FE", 5, 0},
                    DescriptorRow{"CutBehindItsSize", "75 08 95 04 81 02 FE 03", 5, 0},
                    DescriptorRow{"CutInItsData", "75 08 95 04 81 02 FE 03 F0 AABB", 5, 0}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    ShortItems, Descriptor,
    testing::Values(DescriptorRow{"TwoByteCount", "75 08 96 0001 81 02", 257, 0},
                    DescriptorRow{"FourByteCount", "75 08 97 00010000 81 02", 257, 0},
                    DescriptorRow{"NoDataByteIsZero", "75 08 95 04 94 81 02", 0, 0},
                    DescriptorRow{"InputWithoutData", "75 08 95 04 80", 5, 0},
                    DescriptorRow{"InputOfTwoDataBytes", "75 08 95 04 82 0201", 5, 0},
                    DescriptorRow{"CutAheadOfItsData", "75 08 95 04 81 02 91", 5, 0},
                    DescriptorRow{"CutInItsData", "75 08 95 04 81 02 96 01", 5, 0},
                    DescriptorRow{"CutCountDoesNotCount", "75 08 95 04 97 010000", 0, 0}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Huge, Descriptor,
    testing::Values(
        DescriptorRow{"MostThatFits", "75 08 97 FEFF0000 81 02", 65535, 0},
        DescriptorRow{"OneMore", "75 08 97 FFFF0000 81 02", 65535, 0},
        DescriptorRow{"LargestCountAndSize", "77 FFFFFFFF 97 FFFFFFFF 81 02 91 02", 65535, 65535},
        DescriptorRow{"SumThatWouldWrap", "77 00000080 95 02 81 02", 65535, 0},
        DescriptorRow{"ManyHugeFields",
                      "77 FFFFFFFF 97 FFFFFFFF 81 02 81 02 81 02 81 02 81 02 81 02", 65535, 0},
        DescriptorRow{"HugeId", "87 FFFFFFFF 75 08 95 04 81 02", 5, 0, true}),
    RowName());

constexpr char adapterDescriptor[] =
    "06 00FF 09 01 A1 01 85 03 75 08 95 40 81 02 A4 FE 03 F0 AABBCC 91 02 B4 C0";

TEST(DescriptorCut, YieldsWhatStoodAheadOfTheCut) {
  const QByteArray whole = QByteArray::fromHex(adapterDescriptor);
  const qsizetype iInputEnd = 15;  // behind the input item
  const qsizetype iOutputEnd = 24;
  for (qsizetype i = 0; i <= whole.size(); ++i) {
    const HidReportLengths lengths = ParseReportDescriptor(whole.first(i)).lengths;
    EXPECT_EQ(lengths.iInput, i < iInputEnd ? 0 : 65) << i;
    EXPECT_EQ(lengths.iOutput, i < iOutputEnd ? 0 : 65) << i;
  }
}

TEST(DescriptorGarbage, NeverDeclaresALengthOfOne) {
  std::mt19937 random(4711);
  for (int i = 0; i < 20'000; ++i) {
    QByteArray bytes(static_cast<qsizetype>(random() % 64), '\0');
    for (char& c : bytes) c = static_cast<char>(random());
    const HidReportLengths lengths = ParseReportDescriptor(bytes).lengths;
    ASSERT_NE(lengths.iInput, 1) << bytes.toHex().constData();
    ASSERT_NE(lengths.iOutput, 1) << bytes.toHex().constData();
  }
}

TEST(DescriptorGarbage, OfOneByteOverAndOverEnds) {
  for (int iByte = 0; iByte < 256; ++iByte) {
    const QByteArray bytes(4096, static_cast<char>(iByte));
    const ReportLayout layout = ParseReportDescriptor(bytes);
    EXPECT_EQ(layout.lengths.iOutput, 0) << iByte;
    EXPECT_EQ(layout.lengths.iInput, 0) << iByte;
  }
}

}  // namespace
}  // namespace glidetrak
