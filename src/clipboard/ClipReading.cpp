#include "clipboard/ClipReading.h"

#include "platform/DetachedJobs.h"
#include "platform/TimedJob.h"
#include "store/Store.h"
#include "store/images/ImageFiles.h"
#include "vault/Vault.h"

#include <memory>
#include <utility>

namespace ravelo {

namespace {

using Forms = QList<PasteboardEntry>;

/// How long copying a clip waits for its forms: the user is about to paste.
constexpr Seconds formsTimeout{0.25};

constexpr QLatin1StringView pngType("image/png");

} // namespace

Handle ClipReading::clip(const ClipItem& clip, Files files, Done done) const {
    if (clip.kind == ClipKind::image) {
        return image(store.imagePath(clip.imageFileName), std::move(done));
    }
    const PasteboardEntry text{plainTextType, clip.text.toUtf8()};
    if (!clip.secret.isEmpty() || !store.hasForms(clip.id)) {
        done({text});
        return {};
    }
    return runTimed<Forms>(
        jobs, scheduler, formsTimeout,
        [vault = store.vault(), path = store.formsPath(clip.id)] {
            const auto kept = readForms(*vault, path);
            return kept ? kept->forms : Forms();
        },
        [text, files, done = std::move(done)](const std::optional<Forms>& found) {
            Forms forms = found.value_or(Forms());
            if (files == Files::left) {
                forms.removeIf([](const PasteboardEntry& form) { return isFilesForm(form.type); });
            }
            forms.append(text);
            done(forms);
        });
}

Handle ClipReading::image(const QString& path, Done done) const {
    const auto forms = std::make_shared<Forms>();
    return jobs.run(
        [vault = store.vault(), path, forms] {
            const auto bytes = vault->bytes(path);
            if (bytes && isPng(*bytes)) {
                forms->append({pngType, *bytes});
            }
        },
        [forms, done = std::move(done)] { done(*forms); });
}

} // namespace ravelo
