// Any file of a clip's other forms: it is refused, or reads the same once written again.

#include "Input.h"
#include "store/history/ClipForms.h"

using namespace ravelo;

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArray input = fuzz::view(bytes, size).toByteArray();
    const auto kept = decodeForms(input);
    if (kept) {
        fuzz::require(encodeForms(*kept) == input);
        fuzz::require(kept->forms.size() <= maxFormCount);
        for (const PasteboardEntry& form : kept->forms) {
            fuzz::require(isKeptForm(form.type) && form.bytes.size() <= maxFormsSize);
        }
        fuzz::require(formsSize(*kept) <= input.size());
        (void)filesOf(*kept);
    }
    return 0;
}
