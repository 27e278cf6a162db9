#include "store/disk/StoreFile.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QUuid someId(u"0a1b2c3d-4e5f-6789-abcd-ef0123456789"_s);

StoreData someData() {
    return {{{someId, u" a\n"_s, ClipKind::text, {800000000.125}, true, {}},
             {someId, u"Image"_s, ClipKind::image, {-1}, false, u"X.png"_s}},
            {{someId, u"Title"_s, u"Body"_s, u"link"_s, u"Y.png"_s}},
            u"one"_s,
            u"two"_s,
            {{someId, {{1.5, -2}}}},
            {{u"/a"_s, u"/b c"_s}, {u"/d"_s}}};
}

const QByteArray someFile =
    R"({"clips":[)"
    R"({"date":800000000.125,"id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","kind":"text","pinned":true,"text":" a\n"},)"
    R"({"date":-1,"id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","imageFileName":"X.png","kind":"image","pinned":false,"text":"Image"}],)"
    R"("drawing":[{"id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","points":[{"x":1.5,"y":-2}]}],)"
    R"("note":"one","note2":"two","shelfStacks":[["/a","/b c"],["/d"]],)"
    R"("snippets":[{"body":"Body","icon":"link","id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","imageFileName":"Y.png","title":"Title"}]})";

TEST(StoreFile, HasThisForm) {
    EXPECT_EQ(encodeStore(someData()).toStdString(), someFile.toStdString());
}

TEST(StoreFile, CutShortAnywhereIsUndecodable) {
    ASSERT_TRUE(decodeStore(someFile));
    for (qsizetype length = 0; length < someFile.size(); ++length) {
        EXPECT_FALSE(decodeStore(someFile.first(length))) << "cut to " << length << " bytes";
    }
}

struct Edit {
    const char* what;
    const char* before;
    const char* after;
};

QByteArray edited(const Edit& edit) {
    const qsizetype place = someFile.indexOf(edit.before);
    EXPECT_GE(place, 0) << edit.before << " is not in the file";
    return QByteArray(someFile).replace(place, QByteArrayView(edit.before).size(), edit.after);
}

TEST(StoreFile, IsRefusedIfAnythingIsInvalid) {
    const Edit table[] = {
        {"no clips", R"("clips")", R"("klips")"},
        {"no note2", R"("note2")", R"("note3")"},
        {"no note", R"("note":)", R"("n":)"},
        {"no drawing", R"("drawing")", R"("d")"},
        {"no shelf", R"("shelfStacks")", R"("s")"},
        {"no snippets", R"("snippets")", R"("s")"},
        {"note null", R"("note":"one")", R"("note":null)"},
        {"note a number", R"("note":"one")", R"("note":1)"},
        {"clips an object", R"("clips":[)", R"("clips":{},"x":[)"},
        {"clip a string", R"("clips":[)", R"("clips":["a",)"},
        {"clip null", R"("clips":[)", R"("clips":[null,)"},
        {"kind unknown", R"("kind":"text")", R"("kind":"link")"},
        {"kind in other case", R"("kind":"text")", R"("kind":"Text")"},
        {"kind missing", R"("kind":"text",)", ""},
        {"date a string", "800000000.125", R"("800000000.125")"},
        {"date null", "800000000.125", "null"},
        {"date out of range", "800000000.125", "1e999"},
        {"date missing", R"("date":800000000.125,)", ""},
        {"pinned a number", R"("pinned":true)", R"("pinned":1)"},
        {"pinned missing", R"("pinned":true,)", ""},
        {"text missing", R"(,"text":" a\n")", ""},
        {"text an array", R"(" a\n")", "[]"},
        {"id missing", R"("id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","kind")", R"("kind")"},
        {"id in braces", R"("0A1B2C3D-4E5F-6789-ABCD-EF0123456789")",
         R"("{0A1B2C3D-4E5F-6789-ABCD-EF0123456789}")"},
        {"id without hyphens", R"("0A1B2C3D-4E5F-6789-ABCD-EF0123456789")",
         R"("0A1B2C3D4E5F6789ABCDEF0123456789")"},
        {"id with a digit too few", "ABCD-EF0123456789", "ABCD-EF012345678"},
        {"id with a strange digit", "ABCD-EF0123456789", "ABCD-EF012345678G"},
        {"id with a line break", "ABCD-EF0123456789", R"(ABCD-EF0123456789\n)"},
        {"image a number", R"("X.png")", "7"},
        {"image false", R"("Y.png")", "false"},
        {"title missing", R"(,"title":"Title")", ""},
        {"body null", R"("Body")", "null"},
        {"icon missing", R"("icon":"link",)", ""},
        {"point without y", R"(,"y":-2)", ""},
        {"x a string", R"("x":1.5)", R"("x":"1")"},
        {"points missing", R"("points")", R"("dots")"},
        {"stack a string", R"(["/d"])", R"("/d")"},
        {"path a number", R"("/d")", "4"},
        {"bytes that are not UTF-8", "one", "\xff\xfe"},
        {"an array around it", R"({"clips")", R"([{"clips")"},
        {"more behind it", R"("title":"Title"}]})", R"("title":"Title"}]}x)"}};
    for (const Edit& edit : table) {
        EXPECT_FALSE(decodeStore(edited(edit))) << edit.what;
    }
}

TEST(StoreFile, HasEquivalentForms) {
    const Edit table[] = {
        {"as it was written", "", ""},
        {"line breaks between", R"(,"note2")", ",\n \"note2\""},
        {"an image that is null", R"("pinned":true)", R"("pinned":true,"imageFileName":null)"},
        {"an id in lower case", "0A1B2C3D-4E5F-6789-ABCD-EF0123456789",
         "0a1b2c3d-4e5f-6789-abcd-ef0123456789"},
        {"a date with an exponent", "800000000.125", "8.00000000125e8"},
        {"keys from elsewhere", R"("clips":[{)", R"("version":[2],"clips":[{"colour":null,)"}};
    for (const Edit& edit : table) {
        EXPECT_EQ(decodeStore(edited(edit)), someData()) << edit.what;
    }
}

TEST(StoreFile, KeepsTextsUnitForUnit) {
    const std::pair<const char*, QString> table[] = {
        {"empty", u""_s},
        {"escapes", u"\"\\/\b\f\n\r\t"_s},
        {"NUL", QString(QChar(0)) + u"after"_s + QChar(0)},
        {"odd characters", u"\u007f\u0080\u2028\u2029\ufeff\ufffe\uffff"_s},
        {"composed and not", u"🙌 é e\u0301 中"_s},
        {"half a pair", QString(QChar(0xd83d))},
        {"the other half", u"a"_s + QChar(0xde4c) + u"b"_s},
        {"halves in disorder", QString(QChar(0xde4c)) + QChar(0xd83d) + QChar(0xd83d)},
        {"5 MB of letters", QString(5 << 20, u'x')},
        {"5 M of ideographs", QString(5 << 20, QChar(0x4e2d))},
        {"1 M of escapes", QString(1 << 20, QChar(1))}};
    for (const auto& [what, text] : table) {
        StoreData data;
        data.note = text;
        data.clips = {{someId, text, ClipKind::text, {}, false, {}}};
        data.shelfStacks = {{u'/' + text}};
        EXPECT_TRUE(decodeStore(encodeStore(data)) == data) << what;
    }
}

TEST(StoreFile, KeepsNumbersToTheLastBit) {
    std::vector<double> numbers = {0.1,
                                   1.0 / 3,
                                   5e-324,
                                   2.2250738585072014e-308,
                                   std::numeric_limits<double>::max(),
                                   -9007199254740993.0,
                                   0x1p62,
                                   0x1p63,
                                   800000000.1234567};
    std::mt19937_64 random(20010101);
    while (numbers.size() < 5000) {
        const auto number = std::bit_cast<double>(random());
        if (std::isfinite(number)) {
            numbers.push_back(number);
        }
        numbers.push_back(8e8 + static_cast<double>(random() % 1'000'000'007) / 1e6);
    }
    StoreData data;
    for (const double number : numbers) {
        data.clips.append({someId, {}, ClipKind::url, {number}, false, {}});
        data.drawing.append({someId, {{number, -number}}});
    }
    const std::optional<StoreData> read = decodeStore(encodeStore(data));
    ASSERT_TRUE(read);
    for (size_t i = 0; i < numbers.size(); ++i) {
        EXPECT_EQ(read->clips[i].date.sinceReference, numbers[i]);
        EXPECT_EQ(read->drawing[i].points[0].y(), -numbers[i]);
    }
}

TEST(StoreFile, StaysDecodableWithAPointThatIsNowhere) {
    StoreData data = someData();
    data.drawing[0].points.prepend({std::nan(""), 1});
    data.drawing[0].points.append({1, std::numeric_limits<double>::infinity()});
    EXPECT_EQ(decodeStore(encodeStore(data)), someData());
}

} // namespace

} // namespace ravelo
