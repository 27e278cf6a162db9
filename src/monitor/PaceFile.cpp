#include "monitor/PaceFile.h"

#include "monitor/MonitorFiles.h"

namespace ravelo {

namespace {

QByteArray paceFile(const QByteArray& home) {
    return monitorCache(home, "pace.json");
}

} // namespace

PlanCourse loadCourse(const QByteArray& home) {
    return decodeCourse(readMonitorFile(paceFile(home)).value_or(QByteArray()));
}

Result<void> storeCourse(const QByteArray& home, const PlanCourse& course) {
    return writeMonitorFile(paceFile(home), encodeCourse(course));
}

} // namespace ravelo
