#include "platform/wayland/window/Surfaces.h"

#include "platform/wayland/connection/QtConnection.h"

#include <QLibraryInfo>
#include <QVersionNumber>

namespace ravelo::wayland {

using namespace Qt::StringLiterals;

Result<std::unique_ptr<Surfaces>> Surfaces::create(ClipboardThread& thread) {
    wl_display* const display = qt::display();
    if (display == nullptr) {
        return failure(u"Qt is not connected to a Wayland compositor"_s);
    }
    auto globals = std::make_unique<Globals>(display);
    LayerShell shell = bindLayerShell(*globals);
    if (!shell) {
        return failure(u"the Wayland compositor has no layer shell"_s);
    }
    return std::unique_ptr<Surfaces>(new Surfaces(std::move(globals), std::move(shell), thread));
}

Surfaces::Surfaces(std::unique_ptr<Globals> globals, LayerShell shell, ClipboardThread& thread)
    : globals_(std::move(globals)),
      shell_(std::move(shell)),
      coverLockers_(globals_->has("zwlr_input_inhibit_manager_v1") &&
                    !globals_->has("ext_session_lock_manager_v1")),
      loseKeyboardByPress_(globals_->has("org_kde_plasma_shell")),
      fitBuffers_(QLibraryInfo::version() >= QVersionNumber(6, 5) &&
                  globals_->has("wp_fractional_scale_manager_v1") &&
                  globals_->has("wp_viewporter")),
      pixel_(InvisiblePixel::create(*globals_)),
      blur_(*globals_),
      seat_(*globals_),
      activeWindow_(*globals_),
      drops_(*globals_, seat_.seat(), thread) {}

std::unique_ptr<InvisibleSurface> Surfaces::makeInvisible(QScreen* screen, QSize size) {
    wl_output* const output = qt::output(screen);
    return pixel_ == nullptr || output == nullptr
               ? nullptr
               : std::make_unique<InvisibleSurface>(*pixel_, *shell_, output, size);
}

} // namespace ravelo::wayland
