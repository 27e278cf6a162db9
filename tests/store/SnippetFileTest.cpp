#include "store/transfer/SnippetFile.h"

#include "StoreFixture.h"
#include "support/TestFiles.h"
#include "vault/Vault.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class SnippetFiles : public StoreFixture {
protected:
    SnippetFiles() {
        start();
        EXPECT_TRUE(writeFileAtomically(store_->imagePath(u"one.png"_s), picture("png", Qt::red)));
    }

    Result<QList<Snippet>> imported() {
        return importSnippets(file_, *store_->vault(), *decoder_, {});
    }

    /// Of a file with these contents.
    QString problem(const QByteArray& contents) {
        EXPECT_TRUE(writeFileAtomically(file_, contents));
        const auto snippets = imported();
        return snippets ? QString() : snippets.error().message;
    }

    static QByteArray with(const QJsonArray& snippets) {
        return QJsonDocument(QJsonObject{{u"format"_s, u"ravelo-snippets"_s},
                                         {u"version"_s, 1},
                                         {u"snippets"_s, snippets}})
            .toJson();
    }

    QString file_ = directory_.filePath(u"snippets.json"_s);
};

TEST_F(SnippetFiles, ComeBackWithImagesUnderNewNamesAndIds) {
    const QList<Snippet> snippets{
        {QUuid::createUuid(), u"one"_s, u"first\nbody"_s, u"star"_s, u"one.png"_s},
        {QUuid::createUuid(), u"two"_s, QString(), u"link"_s, QString()}};
    ASSERT_TRUE(exportSnippets(snippets, *store_->vault(), file_));
    EXPECT_EQ(modeOf(file_), 0600U);
    const auto back = imported();
    ASSERT_TRUE(back) << qPrintable(back.error().message);
    ASSERT_EQ(back->size(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ((*back)[i].title, snippets[i].title);
        EXPECT_EQ((*back)[i].body, snippets[i].body);
        EXPECT_EQ((*back)[i].icon, snippets[i].icon);
        EXPECT_NE((*back)[i].id, snippets[i].id);
    }
    EXPECT_NE((*back)[0].imageFileName, u"one.png"_s);
    EXPECT_TRUE(QFile::exists(store_->imagePath((*back)[0].imageFileName)));
    ASSERT_TRUE(exportSnippets(snippets, *store_->vault(), file_)) << "it replaces a file";
}

TEST_F(SnippetFiles, EachFaultIsNamedAndNothingStays) {
    const QJsonObject good{{u"title"_s, u"t"_s}, {u"body"_s, u"b"_s}};
    const auto changed = [&](const QString& key, const QJsonValue& value) {
        QJsonObject object = good;
        object[key] = value;
        return object;
    };
    const QByteArray png = picture("png", Qt::red).toBase64();
    const QJsonObject pictured = changed(u"image"_s, QString::fromLatin1(png));
    const QStringList images = imageFiles();
    const std::vector<std::pair<QByteArray, const char*>> faults{
        {"{\"format\": ", "The file is damaged: it is no JSON from character 12 on."},
        {"[1]", "The file has no snippets of Ravelo."},
        {"{\"clips\": []}", "The file has no snippets of Ravelo."},
        {with({good}).replace("1", "2"), "The file was written by a newer Ravelo."},
        {with({}), "There are no snippets in the file."},
        {with({pictured, 7}), "Snippet 2: it has no title."},
        {with({changed(u"title"_s, u" "_s)}), "Snippet 1: it has no title."},
        {with({pictured, changed(u"body"_s, 3)}), "Snippet 2: it has no text."},
        {with({changed(u"image"_s, u"?"_s)}), "Snippet 1: its image is damaged."},
        {with({pictured, changed(u"image"_s, u"bm90"_s)}), "The image of “t” is damaged."},
        {QByteArray(maxSnippetFile + 1, ' '), "The file has more than 16 MB."},
    };
    for (const auto& [contents, message] : faults) {
        EXPECT_EQ(problem(contents), QString::fromUtf8(message)) << contents.first(9).constData();
        EXPECT_EQ(imageFiles(), images) << message;
    }
    QJsonArray many;
    for (int i = 0; i <= 1000; ++i) {
        many.append(good);
    }
    EXPECT_EQ(problem(with(many)), u"The file has more than 1,000 snippets."_s);
    QFile::remove(file_);
    EXPECT_EQ(imported().error().message, u"The file cannot be read."_s);
    QJsonObject odd = changed(u"imageFileName"_s, u"../../note"_s);
    odd[u"id"_s] = 5;
    EXPECT_EQ(problem(with({odd})), QString()) << "what is ignored can be anything";
}

TEST_F(SnippetFiles, AnExportThatCouldNotBeImportedIsNotWritten) {
    Snippet snippet{QUuid::createUuid(), u"t"_s, QString(maxSnippetFile, u'a'), u"link"_s, {}};
    EXPECT_FALSE(exportSnippets({snippet}, *store_->vault(), file_)) << "too long";
    snippet = {QUuid::createUuid(), u"t"_s, u"b"_s, u"link"_s, u"gone.png"_s};
    const auto gone = exportSnippets({snippet}, *store_->vault(), file_);
    EXPECT_EQ(gone.error().message, u"The image of “t” cannot be read."_s);
    EXPECT_FALSE(QFile::exists(file_));
    snippet.imageFileName.clear();
    EXPECT_FALSE(exportSnippets({snippet}, *store_->vault(), u"/nowhere/at/all"_s));
}

} // namespace

} // namespace ravelo
