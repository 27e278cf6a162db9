#include "app/SecondPlan.h"

#include "monitor/PlanUsage.h"
#include "monitor/TranscriptParser.h"
#include "monitor/UsageQuery.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

/// Empty if it is not absolute.
QString cleanPath(const QString& folder, const QString& home) {
    QString path = folder.trimmed();
    if (path.startsWith(QLatin1StringView("~/"))) {
        path.replace(0, 1, home);
    }
    return QDir::isAbsolutePath(path) ? QDir::cleanPath(path) : QString();
}

bool hasLogin(const QString& folder) {
    return QFileInfo(folder + u'/' + QString::fromLatin1(UsageQuery::credentialsFile)).isFile();
}

bool isSame(const QString& one, const QString& other) {
    return QFileInfo(one).canonicalFilePath() == QFileInfo(other).canonicalFilePath();
}

} // namespace

QString secondAccountProblem(const QString& folder, const QString& home,
                             const QByteArrayList& otherFolders) {
    if (folder.trimmed().isEmpty()) {
        return {};
    }
    const QString path = cleanPath(folder, home);
    if (path.isEmpty() || !QFileInfo(path).isDir()) {
        return SecondPlan::tr("No such folder");
    }
    const QString usual = home + QLatin1StringView("/.claude");
    QStringList firsts{usual};
    for (const QByteArray& other : otherFolders) {
        firsts.append(QFile::decodeName(other));
    }
    const auto first = std::ranges::find_if(firsts, hasLogin);
    if (isSame(path, usual) || (first != firsts.end() && isSame(path, *first))) {
        return SecondPlan::tr("That is the first account");
    }
    return hasLogin(path) ? QString() : SecondPlan::tr("No login there");
}

SecondPlan::SecondPlan(Make make) : make_(std::move(make)) {}

SecondPlan::~SecondPlan() {
    made_.usage.reset();
}

void SecondPlan::setFolder(const QString& folder, const QString& home) {
    const QString path = cleanPath(folder, home);
    if (std::exchange(folder_, path) == path) {
        return;
    }
    made_.usage.reset();
    made_ = path.isEmpty() ? Made() : make_(QFile::encodeName(path));
    if (made_.usage) {
        connect(made_.usage.get(), &PlanUsage::changed, this, &SecondPlan::changed);
    }
    Q_EMIT changed();
}

std::optional<OtherPlan> SecondPlan::plan() const {
    if (!made_.usage) {
        return std::nullopt;
    }
    return OtherPlan{oneLine(folder_.section(u'/', -1)),
                     {made_.usage->session(), made_.usage->week()},
                     made_.usage->pace(),
                     made_.usage->figuresAt()};
}

} // namespace ravelo
