#include "shelf/Shelf.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QUrl a(u"file:///a"_s);
const QUrl b(u"file:///b"_s);
const QUrl c(u"file:///c"_s);
const QUrl d(u"file:///d"_s);

TEST(Shelf, followsItsRules) {
    const Shelf two{{{a, b}, {c}}, {a, c}};

    struct Case {
        const char* name;
        std::optional<Shelf> result;
        std::optional<Shelf> expected;
    };

    const Case cases[] = {
        {"only new files make a stack", Shelf{{{a}}, {}}.added({b, a, c}),
         Shelf{{{a}, {b, c}}, {b, c}}},
        {"known files change nothing", Shelf{{{a, b}}, {}}.added({b, a}), std::nullopt},
        {"a file given twice is kept twice", Shelf().added({a, a}), Shelf{{{a, a}}, {a}}},
        {"an empty stack goes", Shelf{{{a}, {b}, {c}}, {b, c}}.removed({b}),
         Shelf{{{a}, {c}}, {c}}},
        {"a file leaves every stack", Shelf{{{a, b}, {a, c}}, {}}.removed({a}),
         Shelf{{{b}, {c}}, {}}},
        {"removed files return to their places", two.removed({a, c}).restored(two), two},
        {"or to the end if others came", Shelf{{{b}, {d}}, {d}}.restored(two),
         Shelf{{{b}, {d}, {a, c}}, {a, c, d}}},
        {"nothing returns twice", two.restored(two.removed({c})), two},
        {"a partly selected stack is selected", two.stackToggled({a, b}),
         Shelf{two.stacks, {a, b, c}}},
        {"a selected stack is deselected", Shelf{two.stacks, {a, b, c}}.stackToggled({a, b}),
         Shelf{two.stacks, {c}}},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(one.result, one.expected) << one.name;
    }
}

TEST(Shelf, listsFilesAndSelectionInItsOwnOrder) {
    const Shelf shelf{{{c, a}, {b}}, {b, c, d}};
    EXPECT_EQ(shelf.files(), (QList<QUrl>{c, a, b}));
    EXPECT_EQ(shelf.selectedFiles(), (QList<QUrl>{c, b})) << "d is not on the shelf";
}

} // namespace
} // namespace ravelo
