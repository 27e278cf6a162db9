#pragma once

#include "base/Scheduler.h"
#include "store/Records.h"

#include <QImage>

namespace ravelo {

inline constexpr Seconds minute(60);
inline constexpr Seconds hour(3600);
inline constexpr Seconds day(86400);

/// Small pictures of a room, of its plan and of colours.
[[nodiscard]] QImage room();
[[nodiscard]] QImage plan();
[[nodiscard]] QImage swatches();

/// Newest first, two of them pinned, two of them images: "room.png" and "plan.png".
[[nodiscard]] QList<ClipItem> sampleClips();
[[nodiscard]] QList<Stroke> sampleSketch();
[[nodiscard]] QString sampleNote();

} // namespace ravelo
