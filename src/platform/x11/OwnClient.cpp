#include "platform/x11/OwnClient.h"

#include <QGuiApplication>

namespace ravelo::x11 {

OwnClient OwnClient::ofQt() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    const xcb_setup_t* setup = xcb_get_setup(x11->connection());
    return {setup->resource_id_base, setup->resource_id_mask};
}

} // namespace ravelo::x11
