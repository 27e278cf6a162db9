// Lists of addresses, and files by the bytes of their paths.

#include "base/UriList.h"

#include "base/FileUrl.h"

#include <gtest/gtest.h>

namespace ravelo {
namespace {

TEST(UriList, givesTheFilesOfThisMachine) {
    struct Case {
        const char* name;
        QByteArray list;
        QList<QByteArray> paths;
    };

    const Case cases[] = {
        {"severalInTheirOrder", "file:///b\r\nfile:///a\r\nfile:///c\r\n", {"/b", "/a", "/c"}},
        {"commentsAndEmptyLines", "# file:///no\r\n\r\nfile:///a\r\n#\r\n", {"/a"}},
        {"lineFeedsOnlyAndNoneAtTheEnd", "file:///a\nfile:///b", {"/a", "/b"}},
        {"aNulAtTheEnd", QByteArray("file:///a\r\n\0", 12), {"/a"}},
        {"encodedNames",
         "file:///a%20b\r\nfile:///100%25\r\nfile:///x%23y%3Fz\r\nfile:///l%0Am\r\n",
         {"/a b", "/100%", "/x#y?z", "/l\nm"}},
        {"otherwiseEncodedIsTheSame", "file:///%61%28%29\r\nfile:///a()", {"/a()", "/a()"}},
        {"utf8", "file:///%C3%A4\r\nfile:///\xc3\xa4", {"/\xc3\xa4", "/\xc3\xa4"}},
        {"notUtf8", "file:///a%ff%2Fb\r\nfile:///\xe4 %25", {"/a\xff/b", "/\xe4 %"}},
        {"notEncodedAtAll",
         "file:///a b?c#d;e\r\nfile:///50% of%2\r\n",
         {"/a b?c#d;e", "/50% of%2"}},
        {"hosts",
         "file://here/a\r\nfile://localhost/b\r\nfile://HERE/c\r\nfile:/d\r\n"
         "file://there/e\r\nfile://here\r\nfile://",
         {"/a", "/b", "/c", "/d"}},
        {"otherSchemes",
         "http://h/a\r\nsftp://h/b\r\nsmb://h/c\r\nmailto:x\r\nFILE:///d\r\nfiles:///e\r\n/f",
         {"/d"}},
        {"folders", "file:///dir/\r\nfile:////dir//\r\nfile:///", {"/dir", "/dir", "/"}},
        {"aMillionSlashes", // Must not recurse for each.
         "file://" + QByteArray(1'000'000, '/') + "a",
         {"/a"}},
        {"nonsense",
         QByteArray("file:relative\r\nfile:///a%00b\r\nfile\r\nfile:\r\n\xff\xfe\r\n%", 46),
         {}},
        {"nothing", "", {}},
    };
    for (const Case& c : cases) {
        QList<QByteArray> paths;
        for (const QUrl& url : localFiles(c.list, "here")) {
            paths.append(filePath(url));
            EXPECT_EQ(fileUrl(paths.last()), url) << c.name;
            EXPECT_EQ(localFiles(fileAddress(url), "here"), QList{url}) << "as we hand it on";
        }
        EXPECT_EQ(paths, c.paths) << c.name;
    }
}

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
