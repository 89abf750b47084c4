// The binary writer is our own; libplist, which reads every file, must read
// back exactly what it wrote.
#include "HistoryTestSupport.h"

#include "history/PropertyList.h"

#include <QTimeZone>

using namespace qor;

namespace {

QVariant roundTrip(const QVariant& v)
{
    const auto bytes = plist::serialize(v);
    EXPECT_TRUE(bytes && bytes->startsWith("bplist00"));
    const auto back = plist::parse(bytes.value_or(QByteArray()));
    EXPECT_TRUE(back);
    return back.value_or(QVariant());
}

} // namespace

TEST(PropertyList, EveryKindSurvivesTheBinaryForm)
{
    const QVariantMap value{
        { "ascii", "Ammonia, Anhydrous (liquefied) and more than fifteen" },
        { "unicode", QString::fromUtf8("Chlorure d'éthyle ☢ 🧪") },
        { "empty", "" },
        { "ints", QVariantList{ 0, 255, 256, 65535, 65536, qlonglong(1) << 32, -1,
                                std::numeric_limits<qlonglong>::min(), std::numeric_limits<qlonglong>::max() } },
        { "real", 2.5 },
        { "flags", QVariantList{ true, false, true } },
        { "data", QByteArray("\x00\x01\xff", 3) },
        { "bigData", QByteArray(300, 'x') },
        { "dates", QVariantList{ QDateTime::fromMSecsSinceEpoch(1709647629123, QTimeZone::utc()),
                                 QDateTime::fromMSecsSinceEpoch(946684800001, QTimeZone::utc()) } },
        { "nested", QVariantMap{ { "list", QVariantList(20, "same") }, { "none", QVariantMap() }, { "zero", QVariantList() } } },
        { "uid", QVariant::fromValue(PlistUid{ 70000 }) },
    };
    const QVariant back = roundTrip(value);
    EXPECT_EQ(back, QVariant(value));
    EXPECT_EQ(back.toMap().value("uid").value<PlistUid>().value, 70000u);
    EXPECT_EQ(back.toMap().value("dates").toList().at(0).toDateTime().toMSecsSinceEpoch(), 1709647629123) << "milliseconds kept";
    EXPECT_EQ(roundTrip(QVariant(std::numeric_limits<qulonglong>::max())).toULongLong(), std::numeric_limits<qulonglong>::max());
}

TEST(PropertyList, LargeTablesWidenReferencesAndOffsets)
{
    QVariantList many;
    for (int i = 0; i < 70000; ++i)
        many.append(QStringLiteral("entry %1").arg(i));
    const QVariantList back = roundTrip(many).toList();
    ASSERT_EQ(back.size(), many.size());
    EXPECT_EQ(back.first(), many.first());
    EXPECT_EQ(back.last(), many.last());
}

TEST(PropertyList, UnsupportedValuesAndDamagedBytesGiveNone)
{
    QString error;
    EXPECT_FALSE(plist::serialize(QVariantList{ 1, QVariant() }, plist::Format::Binary, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(plist::serialize(QVariantMap{ { "d", QDateTime() } }, plist::Format::Xml));
    const QByteArray good = *plist::serialize(QVariantList{ "a", 1, QVariantMap{ { "k", 2.0 } } });
    for (qsizetype cut : { 0, 8, 20, int(good.size()) - 1 })
        EXPECT_FALSE(plist::parse(good.left(cut))) << cut;
    const QByteArray deep = "<plist version=\"1.0\">" + QByteArray("<array>").repeated(5000)
                            + QByteArray("</array>").repeated(5000) + "</plist>";
    EXPECT_FALSE(plist::parse(deep)) << "nesting no real file has";
    QByteArray corrupt = good;
    corrupt[corrupt.size() - 1] = char(0x7f);  // offset table points past the end
    EXPECT_FALSE(plist::parse(corrupt));
}
