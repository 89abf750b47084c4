// Values through the binary form and back, and bytes libplist must never be
// handed.
#include "HistoryTestSupport.h"

#include "history/PropertyList.h"

#include <QElapsedTimer>
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
    EXPECT_EQ(back, QVariant(value)) << "dates to the millisecond";
    EXPECT_EQ(roundTrip(QVariant(std::numeric_limits<qulonglong>::max())).toULongLong(), std::numeric_limits<qulonglong>::max());
}

TEST(PropertyList, LargeTablesWidenReferencesAndOffsets)
{
    QVariantList many;
    for (int i = 0; i < 70000; ++i)
        many.append(QStringLiteral("entry %1").arg(i));
    const QVariantList back = roundTrip(many).toList();
    ASSERT_EQ(back.size(), many.size());
    EXPECT_EQ(back.last(), many.last());
}

TEST(PropertyList, UnsupportedValuesAndDamagedBytesGiveNone)
{
    QString error;
    EXPECT_FALSE(plist::serialize(QVariantList{ 1, QVariant() }, &error));
    EXPECT_FALSE(error.isEmpty());
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

namespace {
// A binary list of the given objects (marker and payload; references one
// byte wide, offsets two), the first being the root.
QByteArray binaryList(const QList<QByteArray>& objects)
{
    QByteArray b("bplist00");
    QByteArray table;
    for (const QByteArray& o : objects) {
        table.append(char(b.size() >> 8)).append(char(b.size() & 0xFF));
        b.append(o);
    }
    const qsizetype tableAt = b.size();
    b.append(table);
    b.append(6, '\0').append(char(2)).append(char(1));
    b.append(7, '\0').append(char(objects.size())).append(8, '\0');
    b.append(6, '\0').append(char(tableAt >> 8)).append(char(tableAt & 0xFF));
    return b;
}

// {key: value}, both strings.
QByteArray binaryDict(const QByteArray& key, const QByteArray& value)
{
    return binaryList({ QByteArray("\xD1\x01\x02", 3), char(0x50 | key.size()) + key, char(0x50 | value.size()) + value });
}
} // namespace

TEST(PropertyList, ANulIsRefusedInKeysOnly)
{
    const auto plain = plist::parse(binaryDict("k", "ab"));
    ASSERT_TRUE(plain) << "the hand-made list is well formed";
    const auto inValue = plist::parse(binaryDict("k", QByteArray("a\0b", 3)));
    ASSERT_TRUE(inValue) << "a NUL in a value does libplist no harm";
    EXPECT_TRUE(inValue->toMap().value("k").toString().startsWith("a"));
    EXPECT_FALSE(plist::parse(binaryDict(QByteArray("k\0", 2), "ab")));

    const QByteArray xml = "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>k&#0;</key><string>a</string>"
                           "</dict></plist>";
    EXPECT_FALSE(plist::parse(xml));
    EXPECT_TRUE(plist::parse(QByteArray(xml).replace("k&#0;", "k")));
}

TEST(PropertyList, SharedObjectsAreReadOnceAndLoopsAreRefused)
{
    // Each array holds the next one twice; the last holds a string.
    QList<QByteArray> chain;
    for (int i = 0; i < 100; ++i)
        chain.append(QByteArray("\xA2", 1) + char(i + 1) + char(i + 1));
    chain.append("\x54leaf");
    QElapsedTimer timer;
    timer.start();
    const auto read = plist::parse(binaryList(chain));
    ASSERT_TRUE(read);
    EXPECT_LT(timer.elapsed(), 5000) << "2^100 paths, 101 objects";
    QVariant v = *read;
    for (int i = 0; i < 100; ++i)
        v = v.toList().value(1);
    EXPECT_EQ(v.toString(), "leaf");

    EXPECT_FALSE(plist::parse(binaryList({ QByteArray("\xA1\x00", 2) }))) << "an array holding itself";
    EXPECT_FALSE(plist::parse(binaryList({ QByteArray("\xA1\x05", 2) }))) << "a reference past the last object";
    EXPECT_FALSE(plist::parse(binaryList({ QByteArray("\x5F\x10\x7F", 3) }))) << "a string longer than the bytes";
    EXPECT_FALSE(plist::parse(binaryList({ QByteArray("\xD1\x01\x01", 3), QByteArray("\x10\x01", 2) })))
        << "a key that is no string";
}

TEST(PropertyList, OtherWritersKindsAreRead)
{
    const auto set = plist::parse(binaryList({ QByteArray("\xC2\x01\x02", 3), "\x09", QByteArray("\x22\x40\x20\x00\x00", 5),
                                               QByteArray("\x61\x00\xe9", 3) }));
    ASSERT_TRUE(set) << "a set, a single-precision real, UTF-16 text";
    EXPECT_EQ(set->toList(), QVariantList({ true, 2.5 }));
    EXPECT_FALSE(plist::parse(binaryList({ QByteArray("\x00", 1) }))) << "null has no Qt value here";
}
