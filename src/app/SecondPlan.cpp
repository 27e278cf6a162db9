#include "app/SecondPlan.h"

#include "monitor/PlanUsage.h"
#include "monitor/TranscriptParser.h"

#include <QDir>
#include <QFile>

#include <utility>

namespace ravelo {

SecondPlan::SecondPlan(Make make) : make_(std::move(make)) {}

SecondPlan::~SecondPlan() {
    made_.usage.reset();
}

void SecondPlan::setFolder(const QString& folder, const QString& home) {
    QString path = folder.trimmed();
    if (path.startsWith(QLatin1StringView("~/"))) {
        path.replace(0, 1, home);
    }
    path = QDir::isAbsolutePath(path) ? QDir::cleanPath(path) : QString();
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
