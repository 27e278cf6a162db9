#include "support/Eventually.h"

#include <QCoreApplication>
#include <QTimer>

namespace ravelo {

bool eventually(const std::function<bool()>& condition) {
    QTimer timeOut;
    timeOut.setSingleShot(true);
    timeOut.start(20000);
    QTimer wake; // The condition may become true without an event in this process.
    wake.start(2);
    while (!condition()) {
        if (!timeOut.isActive()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace ravelo
