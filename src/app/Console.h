#pragma once

#include "platform/Answer.h"

namespace ravelo {

/// Says on standard error, line by line, who complains.
void complain(const QString& text);

/// To standard output, whole. The exit status.
[[nodiscard]] int print(const QByteArray& text);

/// Both for an answer; its status, if all could be printed.
[[nodiscard]] int report(const Answer& answer);

} // namespace ravelo
