#include "shelf/Shelf.h"

#include <gtest/gtest.h>

#include <ostream>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QUrl a(u"file:///a"_s);
const QUrl b(u"file:///b"_s);
const QUrl c(u"file:///c"_s);
const QUrl d(u"file:///d"_s);

struct ShelfCase {
    const char* name;
    Shelf before;
    std::optional<Shelf> (*change)(const Shelf& shelf);
    std::optional<Shelf> after;

    friend void PrintTo(const ShelfCase& tested, std::ostream* out) { *out << tested.name; }
};

class ShelfRule : public testing::TestWithParam<ShelfCase> {};

TEST_P(ShelfRule, makesOfTheShelf) {
    EXPECT_EQ(GetParam().change(GetParam().before), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ShelfRule,
    testing::Values(ShelfCase{"onlyNewFilesMakeAStack",
                              {{{a}}, {}},
                              [](const Shelf& shelf) {
                                  return shelf.added({b, a, c});
                              },
                              Shelf{{{a}, {b, c}}, {b, c}}},
                    ShelfCase{"knownFilesOnlyChangeNothing",
                              {{{a, b}}, {}},
                              [](const Shelf& shelf) {
                                  return shelf.added({b, a});
                              },
                              std::nullopt},
                    ShelfCase{"aFileGivenTwiceIsKeptTwice",
                              {},
                              [](const Shelf& shelf) {
                                  return shelf.added({a, a});
                              },
                              Shelf{{{a, a}}, {a}}},
                    ShelfCase{"theLastFileTakesItsStackAlong",
                              {{{a}, {b}, {c}}, {b, c}},
                              [](const Shelf& shelf) { return std::optional(shelf.removed({b})); },
                              Shelf{{{a}, {c}}, {c}}},
                    ShelfCase{"aFileLeavesEveryStack",
                              {{{a, b}, {a, c}}, {}},
                              [](const Shelf& shelf) { return std::optional(shelf.removed({a})); },
                              Shelf{{{b}, {c}}, {}}},
                    ShelfCase{"aPartlySelectedStackIsSelected",
                              {{{a, b}, {c}}, {a, c}},
                              [](const Shelf& shelf) {
                                  return std::optional(shelf.stackToggled({a, b}));
                              },
                              Shelf{{{a, b}, {c}}, {a, b, c}}},
                    ShelfCase{"aSelectedStackIsDeselected",
                              {{{a, b}, {c}}, {a, b, c}},
                              [](const Shelf& shelf) {
                                  return std::optional(shelf.stackToggled({a, b}));
                              },
                              Shelf{{{a, b}, {c}}, {c}}}),
    [](const auto& row) { return row.param.name; });

TEST(Shelf, listsFilesAndSelectionInItsOwnOrder) {
    const Shelf shelf{{{c, a}, {b}}, {b, c, d}};
    EXPECT_EQ(shelf.files(), (QList<QUrl>{c, a, b}));
    EXPECT_EQ(shelf.selectedFiles(), (QList<QUrl>{c, b})) << "d is not on the shelf";
}

} // namespace
} // namespace ravelo
