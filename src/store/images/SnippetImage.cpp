#include "store/images/SnippetImage.h"

#include "base/Scheduler.h"
#include "platform/DetachedJobs.h"
#include "platform/Pasteboard.h"
#include "platform/Worker.h"
#include "store/images/CopiedFile.h"
#include "store/images/ImageFiles.h"
#include "store/images/PasteboardImage.h"

#include <QStringList>

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

namespace {

/// For all forms together: after that the user has moved on.
constexpr Seconds timeout{10};

/// Kept alive by the caller's handle; callbacks hold it weakly.
class Request : public std::enable_shared_from_this<Request> {
public:
    Request(const StoreServices& services, QString path, std::function<void(bool)> done)
        : services_(services), path_(std::move(path)), done_(std::move(done)) {}

    void start() {
        deadline_ = services_.scheduler.uptime() + timeout;
        ask();
    }

    void cancel() {
        stopWaiting();
        done_ = nullptr;
    }

private:
    [[nodiscard]] std::function<void()> guarded(void (Request::*action)()) {
        return [weak = weak_from_this(), action] {
            if (const auto self = weak.lock()) {
                (self.get()->*action)();
            }
        };
    }

    [[nodiscard]] PasteboardPlan plan() const {
        return [useless = useless_](const PasteboardSnapshot& contents) {
            return nextImageType(contents, useless);
        };
    }

    void ask() {
        change_ = services_.pasteboard.onChange(guarded(&Request::readOther));
        timeout_ = services_.scheduler.after(
            std::max(Seconds(0), deadline_ - services_.scheduler.uptime()),
            guarded(&Request::giveUp));
        read();
    }

    void readOther() {
        useless_.clear();
        read();
    }

    void read() {
        reading_ = services_.pasteboard.read(
            plan(), [weak = weak_from_this()](const PasteboardSnapshot& contents) {
                if (const auto self = weak.lock()) {
                    self->change_.reset();
                    self->timeout_.reset();
                    self->readFile(contents);
                }
            });
    }

    void readFile(const PasteboardSnapshot& contents) {
        const QByteArray path = copiedFile(contents);
        if (path.isEmpty()) {
            convert(contents, {});
            return;
        }
        file_ = readCopiedFile(services_.copiedFiles, services_.scheduler, path,
                               [weak = weak_from_this(), contents](const CopiedContents& file) {
                                   if (const auto self = weak.lock()) {
                                       self->convert(contents, file);
                                   }
                               });
    }

    void convert(const PasteboardSnapshot& contents, const CopiedContents& file) {
        const auto image = std::make_shared<KeptImage>();
        converting_ = services_.conversions.run(
            [contents, file, image, decoder = services_.decoder] {
                *image = imageToKeep(contents, file, *decoder);
            },
            [weak = weak_from_this(), image, contents] {
                if (const auto self = weak.lock()) {
                    self->converted(contents, image->png);
                }
            });
    }

    void converted(const PasteboardSnapshot& contents, const QByteArray& png) {
        const QString type = imageType(contents);
        useless_.append(type);
        if (png.isEmpty() && !type.isEmpty() && hasOtherForm(contents.types, useless_)) {
            ask();
        } else {
            write(png);
        }
    }

    void write(const QByteArray& png) {
        const auto written = std::make_shared<bool>(false);
        auto job = [vault = services_.vault, path = path_, png, written,
                    mayWrite = services_.mayWrite] {
            *written = writeImage(*vault, path, png, mayWrite).has_value();
        };
        services_.worker.run(std::move(job), [self = shared_from_this(), written] {
            if (!self->done_) {
                self->services_.worker.run(
                    [path = self->path_, mayWrite = self->services_.mayWrite] {
                        (void)removeImages({path}, mayWrite);
                    });
            } else {
                self->finish(*written);
            }
        });
    }

    void giveUp() {
        stopWaiting();
        finish(false);
    }

    void stopWaiting() {
        change_.reset();
        timeout_.reset();
        reading_.reset();
        file_.reset();
        converting_.reset();
    }

    void finish(bool written) {
        if (const auto done = std::exchange(done_, nullptr)) {
            done(written);
        }
    }

    StoreServices services_;
    QString path_;
    std::function<void(bool)> done_;
    Seconds deadline_{};
    Handle change_;
    Handle timeout_;
    Handle reading_;
    Handle file_;
    Handle converting_;
    QStringList useless_; ///< Forms that could not be decoded.
};

} // namespace

Handle saveSnippetImage(const StoreServices& services, const QString& path,
                        std::function<void(bool)> done) {
    const auto request = std::make_shared<Request>(services, path, std::move(done));
    request->start();
    return Handle([request] { request->cancel(); });
}

} // namespace ravelo
