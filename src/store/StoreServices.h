#pragma once

#include "base/OwnFile.h"

#include <memory>

namespace ravelo {

class AlertSound;
class DetachedJobs;
class ImageDecoder;
class Pasteboard;
class Preferences;
class Scheduler;
class Vault;
class Worker;

/// What the store needs of the platform; all of it outlives the store.
struct StoreServices {
    Scheduler& scheduler;
    Worker& worker;
    Preferences& preferences;
    Pasteboard& pasteboard;
    AlertSound& sound;
    DetachedJobs& jobs;                    ///< To check parked files.
    DetachedJobs& copiedFiles;             ///< To read copied files; if full, nothing is read.
    DetachedJobs& conversions;             ///< To convert images to PNG, which always ends.
    std::shared_ptr<ImageDecoder> decoder; ///< Shared with jobs.
    OwnFile::Permission mayWrite = {};     ///< Asked before each change of a file.
    std::shared_ptr<Vault> vault = {};     ///< Of the store's folder; made if there is none.
};

} // namespace ravelo
