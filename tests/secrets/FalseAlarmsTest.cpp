#include "secrets/SecretForms.h"

#include <QDirIterator>
#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <random>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Texts as people copy them, from files of this machine: lines, paragraphs and long words.
class Corpus {
public:
    explicit Corpus(qsizetype size) : size_(size) {}

    [[nodiscard]] bool isFull() const { return texts_.size() >= size_; }

    [[nodiscard]] const QSet<QString>& texts() const { return texts_; }

    /// Files below `folder`, of which at most `share` texts are used.
    void addFolder(const QString& folder, const QStringList& names, qsizetype share) {
        const qsizetype end = std::min(size_, texts_.size() + share);
        QDirIterator files(folder, names, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext() && texts_.size() < end) {
            addFile(files.next(), std::min(end, texts_.size() + 200));
        }
    }

    void addFile(const QString& path, qsizetype end) {
        QFile file(path);
        if (path.contains(u"/secrets/"_s) || !file.open(QIODevice::ReadOnly)) {
            return;
        }
        const QString all = QString::fromUtf8(file.read(1 << 20));
        for (const QString& paragraph : all.split(u"\n\n"_s, Qt::SkipEmptyParts)) {
            add(paragraph, end);
            for (const QString& line : paragraph.split(u'\n')) {
                add(line, end);
                for (const QString& word : line.split(u' ')) {
                    add(word.size() >= 12 ? word : QString(), end);
                }
            }
        }
    }

private:
    void add(const QString& text, qsizetype end) {
        if (texts_.size() < end && text.trimmed().size() > 3) {
            texts_.insert(text);
        }
    }

    qsizetype size_;
    QSet<QString> texts_;
};

std::map<QString, int> alarms(const auto& texts, KeyLikeWords words) {
    std::map<QString, int> counts;
    for (const QString& text : texts) {
        if (const SecretForm* form = SecretForms::of(text, words)) {
            ++counts[form->id];
        }
    }
    return counts;
}

int sum(const char* where, const std::map<QString, int>& counts, qsizetype texts) {
    int all = 0;
    std::printf("%s, %lld texts:", where, static_cast<long long>(texts));
    for (const auto& [form, count] : counts) {
        std::printf(" %s %d", qPrintable(form), count);
        all += count;
    }
    std::printf(" (%.3f %%)\n", 100.0 * all / double(texts));
    return all;
}

TEST(FalseAlarms, AreRareInEverydayTexts) {
    constexpr qsizetype size = 10'000;
    Corpus corpus(size);
    corpus.addFile(u"/var/lib/dpkg/status"_s, 3000);
    corpus.addFolder(QStringLiteral(RAVELO_SOURCES), {u"*.cpp"_s, u"*.h"_s, u"*.qml"_s}, 3000);
    corpus.addFolder(u"/usr/include"_s, {u"*.h"_s}, 2000);
    corpus.addFolder(u"/usr/share"_s,
                     {u"*.txt"_s, u"*.md"_s, u"README*"_s, u"*.py"_s, u"copyright"_s}, size);
    ASSERT_TRUE(corpus.isFull()) << "only " << corpus.texts().size() << " texts on this machine";
    const int found = sum("everyday", alarms(corpus.texts(), KeyLikeWords::no), size);
    EXPECT_LT(found, size / 1000);
    (void)sum("everyday, with key-like words", alarms(corpus.texts(), KeyLikeWords::yes), size);
}

/// A number with the prefix, the length and the check digit of a card is one, as far as anyone can
/// see: about one in four hundred of these. Nothing else may be seen in them.
TEST(FalseAlarms, AmongNumbersAreOnlyPossibleCards) {
    constexpr int size = 100'000;
    std::mt19937 random(1);
    std::uniform_int_distribution<int> length(13, 19);
    std::uniform_int_distribution<int> digit(0, 9);
    QStringList numbers;
    for (int i = 0; i < size; ++i) {
        QString number;
        for (int left = length(random); left > 0; --left) {
            number += QChar(u'0' + digit(random));
        }
        numbers.append(number);
    }
    const auto counts = alarms(numbers, KeyLikeWords::yes);
    const int found = sum("numbers", counts, size);
    EXPECT_EQ(found, counts.contains(u"card"_s) ? counts.at(u"card"_s) : 0) << "only cards";
    EXPECT_LT(found, size / 200);
}

} // namespace

} // namespace ravelo
