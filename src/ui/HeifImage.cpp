#include "ui/HeifImage.h"

#include <QFile>
#include <QLibrary>

#include <libheif/heif.h>

#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostPixels = 50'000'000;

/// The functions of the library under their own names, once it is loaded.
struct Library {
    QLibrary file{u"heif"_s, 1};
    bool whole = true;

    template <typename Function>
    Function* function(const char* name) {
        auto* const found = reinterpret_cast<Function*>(file.resolve(name));
        whole = whole && found != nullptr;
        return found;
    }

#define RAVELO_HEIF(name)                                                                          \
    decltype(::heif_##name)* name = function<decltype(::heif_##name)>("heif_" #name)
    RAVELO_HEIF(context_alloc);
    RAVELO_HEIF(context_free);
    RAVELO_HEIF(context_read_from_file);
    RAVELO_HEIF(context_get_primary_image_handle);
    RAVELO_HEIF(image_handle_release);
    RAVELO_HEIF(image_handle_get_width);
    RAVELO_HEIF(image_handle_get_height);
    RAVELO_HEIF(image_handle_get_list_of_thumbnail_IDs);
    RAVELO_HEIF(image_handle_get_thumbnail);
    RAVELO_HEIF(decode_image);
    RAVELO_HEIF(image_get_width);
    RAVELO_HEIF(image_get_height);
    RAVELO_HEIF(image_get_plane_readonly);
    RAVELO_HEIF(image_release);
#undef RAVELO_HEIF
};

using Context = std::unique_ptr<heif_context, void (*)(heif_context*)>;
using Picture = std::unique_ptr<heif_image_handle, void (*)(const heif_image_handle*)>;
using Pixels = std::unique_ptr<heif_image, void (*)(const heif_image*)>;

bool worked(const heif_error& error) {
    return error.code == heif_error_Ok;
}

Picture smallest(const Library& heif, Picture whole, int height) {
    heif_item_id id = 0;
    heif_image_handle* small = nullptr;
    if (heif.image_handle_get_list_of_thumbnail_IDs(whole.get(), &id, 1) != 1 ||
        !worked(heif.image_handle_get_thumbnail(whole.get(), id, &small))) {
        return whole;
    }
    Picture found(small, heif.image_handle_release);
    return heif.image_handle_get_height(small) < height ? std::move(whole) : std::move(found);
}

/// As high as `height`, where it is higher.
QImage decoded(const Library& heif, const heif_image_handle* picture, int height) {
    const qint64 width = heif.image_handle_get_width(picture);
    heif_image* decoded = nullptr;
    if (width * heif.image_handle_get_height(picture) > mostPixels ||
        !worked(heif.decode_image(picture, &decoded, heif_colorspace_RGB,
                                  heif_chroma_interleaved_RGBA, nullptr))) {
        return {};
    }
    const Pixels pixels(decoded, heif.image_release);
    int stride = 0;
    const uint8_t* const bytes =
        heif.image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    const QImage shared(bytes, heif.image_get_width(decoded, heif_channel_interleaved),
                        heif.image_get_height(decoded, heif_channel_interleaved), stride,
                        QImage::Format_RGBA8888);
    return shared.height() > height ? shared.scaledToHeight(height, Qt::SmoothTransformation)
                                    : shared.copy();
}

} // namespace

QImage heifImage(const QString& path, int height) {
    static const Library& heif = *new Library; // A picture may be read as the process ends.
    if (!heif.whole) {
        return {};
    }
    const Context context(heif.context_alloc(), heif.context_free);
    heif_image_handle* primary = nullptr;
    if (!worked(heif.context_read_from_file(context.get(), QFile::encodeName(path).constData(),
                                            nullptr)) ||
        !worked(heif.context_get_primary_image_handle(context.get(), &primary))) {
        return {};
    }
    const Picture picture = smallest(heif, Picture(primary, heif.image_handle_release), height);
    return decoded(heif, picture.get(), height);
}

} // namespace ravelo
