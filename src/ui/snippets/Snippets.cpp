#include "ui/snippets/Snippets.h"

#include "clipboard/ClipboardManager.h"
#include "panel/NotchController.h"
#include "store/Store.h"
#include "ui/controls/Toast.h"
#include "ui/lists/Deleting.h"

#include <algorithm>

namespace ravelo {

Snippets::Snippets(Services services, const QLocale& locale)
    : services_(services), list_(services.store, locale), editor_(services.store) {}

void Snippets::copy(const QUuid& id) {
    const auto& snippets = services_.store.snippets();
    const auto found = std::ranges::find(snippets, id, &Snippet::id);
    if (found != snippets.end()) {
        if (found->imageFileName.isEmpty()) {
            services_.controller.copy(found->body);
        } else {
            services_.clipboard.copyWithImage(found->body,
                                              services_.store.imagePath(found->imageFileName));
        }
        services_.toast.flashCopied();
    }
}

void Snippets::remove(const QUuid& id) {
    services_.deleting.run(
        [this, id](const auto& records) {
            const qsizetype before = services_.store.snippets().size();
            services_.store.removeSnippet(id, records);
            return before - services_.store.snippets().size();
        },
        {tr("Snippet deleted"), tr("%1 deleted")});
}

} // namespace ravelo
