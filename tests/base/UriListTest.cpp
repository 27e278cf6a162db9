// Lists of addresses, and files by the bytes of their paths.

#include "base/UriList.h"

#include "base/FileUrl.h"

#include <gtest/gtest.h>

#include <ostream>

namespace ravelo {
namespace {

struct ListCase {
    const char* name;
    QByteArray list;
    QList<QByteArray> paths;

    friend void PrintTo(const ListCase& tested, std::ostream* out) { *out << tested.name; }
};

class UriList : public testing::TestWithParam<ListCase> {};

TEST_P(UriList, givesTheFilesOfThisMachine) {
    QList<QByteArray> paths;
    for (const QUrl& url : localFiles(GetParam().list, "here")) {
        paths.append(filePath(url));
        EXPECT_EQ(fileUrl(paths.last()), url);
        EXPECT_EQ(localFiles(fileAddress(url), "here"), QList{url}) << "as we hand it on";
    }
    EXPECT_EQ(paths, GetParam().paths);
}

INSTANTIATE_TEST_SUITE_P(
    Table, UriList,
    testing::Values(
        ListCase{
            "severalInTheirOrder", "file:///b\r\nfile:///a\r\nfile:///c\r\n", {"/b", "/a", "/c"}},
        ListCase{"commentsAndEmptyLines", "# file:///no\r\n\r\nfile:///a\r\n#\r\n", {"/a"}},
        ListCase{"lineFeedsOnlyAndNoneAtTheEnd", "file:///a\nfile:///b", {"/a", "/b"}},
        ListCase{"aNulAtTheEnd", QByteArray("file:///a\r\n\0", 12), {"/a"}},
        ListCase{"encodedNames",
                 "file:///a%20b\r\nfile:///100%25\r\nfile:///x%23y%3Fz\r\nfile:///l%0Am\r\n",
                 {"/a b", "/100%", "/x#y?z", "/l\nm"}},
        ListCase{"otherwiseEncodedIsTheSame", "file:///%61%28%29\r\nfile:///a()", {"/a()", "/a()"}},
        ListCase{"utf8", "file:///%C3%A4\r\nfile:///\xc3\xa4", {"/\xc3\xa4", "/\xc3\xa4"}},
        ListCase{"notUtf8", "file:///a%ff%2Fb\r\nfile:///\xe4 %25", {"/a\xff/b", "/\xe4 %"}},
        ListCase{"notEncodedAtAll",
                 "file:///a b?c#d;e\r\nfile:///50% of%2\r\n",
                 {"/a b?c#d;e", "/50% of%2"}},
        ListCase{"hosts",
                 "file://here/a\r\nfile://localhost/b\r\nfile://HERE/c\r\nfile:/d\r\n"
                 "file://there/e\r\nfile://here\r\nfile://",
                 {"/a", "/b", "/c", "/d"}},
        ListCase{
            "otherSchemes",
            "http://h/a\r\nsftp://h/b\r\nsmb://h/c\r\nmailto:x\r\nFILE:///d\r\nfiles:///e\r\n/f",
            {"/d"}},
        ListCase{"folders", "file:///dir/\r\nfile:////dir//\r\nfile:///", {"/dir", "/dir", "/"}},
        ListCase{"asManySlashesAsAnAnswerHolds", // Nobody may be called once for each.
                 "file://" + QByteArray(1'000'000, '/') + "a",
                 {"/a"}},
        ListCase{"nonsense",
                 QByteArray("file:relative\r\nfile:///a%00b\r\nfile\r\nfile:\r\n\xff\xfe\r\n%", 46),
                 {}},
        ListCase{"nothing", "", {}}),
    [](const auto& tested) { return tested.param.name; });

TEST(FileUrl, isOfLocalFilesOnly) {
    for (const char* other : {"http://h/a", "file://there/a", "a", ""}) {
        const QUrl url = QUrl::fromEncoded(other);
        EXPECT_EQ(filePath(url), QByteArray()) << other;
        EXPECT_EQ(fileAddress(url), QByteArray()) << other;
    }
    EXPECT_EQ(fileAddress(fileUrl("/a b(\xff)%")), "file:///a%20b%28%FF%29%25");
}

} // namespace
} // namespace ravelo
