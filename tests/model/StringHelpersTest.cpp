// Ordering helpers for labelled rows and versions, and the digest.
#include "model/Filter.h"
#include "model/Resources.h"

#include <gtest/gtest.h>

using namespace qor;

TEST(StringHelpers, LabelRanksNeverCompareEqual)
{
    EXPECT_EQ(compareNumerically("Exposure:", "IDLH"), -1);
    EXPECT_EQ(compareNumerically("IDLH", "IDLH"), 1) << "equal ranks still answer +1";
    EXPECT_EQ(compareNumericallyByShippingLabel("Bulk Packaging:", "Packing Group:"), 1);
}

TEST(StringHelpers, VersionsCompareDigitRunsByValue)
{
    EXPECT_EQ(compareVersion("1.10", "1.9"), 1);
    EXPECT_EQ(compareVersion("2.0", "2.0"), 0);
    EXPECT_EQ(compareVersion("1.02", "1.2"), 0);
    EXPECT_EQ(compareVersion("1.2", "1.2.1"), -1);
    EXPECT_EQ(compareVersionDescending("1.10", "1.9"), -1);
}

TEST(StringHelpers, DigestAndTextConversions)
{
    EXPECT_EQ(MD5(QString::fromUtf8("é")), "66ddcd97cfdeabb2f6fb8a999b4bc76f") << "digest of the UTF-8 bytes";
    EXPECT_EQ(leadingInt("  42abc"), 42);
    EXPECT_EQ(leadingInt("-7"), -7);
    EXPECT_EQ(leadingInt("99999999999"), INT_MAX);
    EXPECT_EQ(capitalized("N,N-DIMETHYLANILINE"), "N,N-Dimethylaniline");
}
