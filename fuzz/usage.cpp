// Any answer about the plan from servers, other programs and the keyring.

#include "Input.h"
#include "monitor/HandedOver.h"
#include "monitor/PlanPace.h"
#include "monitor/UsageReaders.h"

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArrayView input = fuzz::view(bytes, size);
    (void)readUsageAnswer(input);
    const auto windows = readUsageFile(input);
    const auto kept = usageFileOf(input);
    fuzz::require(windows.has_value() == kept.has_value());
    fuzz::require(!kept || readUsageFile(*kept) == windows);
    if (const auto handed = readHandedOver(input, Date{})) {
        fuzz::require(!handed->model.contains(u'\n') && handed->used.value_or(0) >= 0);
    }
    const PlanCourse course = decodeCourse(input);
    fuzz::require(course.session.samples().size() <= 100 && course.week.samples().size() <= 100);
    (void)course.pace(windows.value_or(PlanWindows()));
    const Seconds wait = readRetryAfter(input.toByteArray(), Date{});
    fuzz::require(wait >= Seconds(0) && wait <= Seconds(86400));
    if (const auto credentials = readCredentials(input)) {
        fuzz::require(!credentials->accessToken.isEmpty() &&
                      !credentials->accessToken.bytes().contains('\n'));
    }
    return 0;
}
