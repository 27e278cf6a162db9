#include "decode/Heif.h"

#include <libheif/heif.h>

#include <memory>

namespace ravelo::decode {

namespace {

using Handle = std::unique_ptr<heif_image_handle, void (*)(const heif_image_handle*)>;
using Pixels = std::unique_ptr<heif_image, void (*)(const heif_image*)>;

bool worked(const heif_error& error) {
    return error.code == heif_error_Ok;
}

/// Does not own the bytes.
class File {
public:
    explicit File(const QByteArray& bytes) {
        heif_context_set_max_decoding_threads(context_.get(), 0);
        heif_image_handle* primary = nullptr;
        if (worked(heif_context_read_from_memory_without_copy(
                context_.get(), bytes.constData(), static_cast<size_t>(bytes.size()), nullptr)) &&
            worked(heif_context_get_primary_image_handle(context_.get(), &primary))) {
            primary_.reset(primary);
        }
    }

    [[nodiscard]] const heif_image_handle* primary() const { return primary_.get(); }

private:
    std::unique_ptr<heif_context, void (*)(heif_context*)> context_{heif_context_alloc(),
                                                                    heif_context_free};
    Handle primary_{nullptr, heif_image_handle_release};
};

QSize sizeOf(const heif_image_handle* picture) {
    return {heif_image_handle_get_width(picture), heif_image_handle_get_height(picture)};
}

bool isBearable(QSize size) {
    return !size.isEmpty() && qint64(size.width()) * size.height() <= maxHeifPixels;
}

Handle thumbnail(const heif_image_handle* whole, int height) {
    Handle found(nullptr, heif_image_handle_release);
    heif_item_id id = 0;
    heif_image_handle* small = nullptr;
    if (heif_image_handle_get_list_of_thumbnail_IDs(whole, &id, 1) == 1 &&
        worked(heif_image_handle_get_thumbnail(whole, id, &small))) {
        found.reset(small);
    }
    return found && sizeOf(small).height() >= height ? std::move(found)
                                                     : Handle(nullptr, heif_image_handle_release);
}

QImage decoded(const heif_image_handle* picture) {
    heif_image* decoded = nullptr;
    if (!isBearable(sizeOf(picture)) ||
        !worked(heif_decode_image(picture, &decoded, heif_colorspace_RGB,
                                  heif_chroma_interleaved_RGBA, nullptr))) {
        return {};
    }
    Pixels pixels(decoded, heif_image_release);
    int stride = 0;
    const uint8_t* const bytes =
        heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    const QSize size(heif_image_get_width(decoded, heif_channel_interleaved),
                     heif_image_get_height(decoded, heif_channel_interleaved));
    if (bytes == nullptr || !isBearable(size)) {
        return {};
    }
    const auto release = [](void* image) {
        heif_image_release(static_cast<heif_image*>(image));
    };
    return {bytes,   size.width(),    size.height(), stride, QImage::Format_RGBA8888,
            release, pixels.release()};
}

} // namespace

QSize heifSize(const QByteArray& bytes) {
    const File file(bytes);
    return file.primary() == nullptr ? QSize() : sizeOf(file.primary());
}

QImage heifImage(const QByteArray& bytes, int height) {
    const File file(bytes);
    if (file.primary() == nullptr) {
        return {};
    }
    if (const Handle small = thumbnail(file.primary(), height)) {
        return decoded(small.get());
    }
    return decoded(file.primary());
}

const HeifReader* raveloHeif() {
    static constexpr HeifReader reader{heifSize, heifImage};
    heif_init(nullptr); // Since 1.16 the codecs are plugins.
    return &reader;
}

} // namespace ravelo::decode
