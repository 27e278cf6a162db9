#pragma once

namespace ravelo {

/// The contents of forms.json.
extern const char formsFile[];

} // namespace ravelo
