// SPDX-License-Identifier: MIT
#include "logedit/changereport.h"

namespace vantrel {

bool reportChange(const ChangeResult& result, LogEdit& log, Messages& messages) {
    if (result.made) {
        const std::optional<RuntimeError> failed = log.followChange();
        if (failed)
            messages.show({failed->headline(), BoxIcon::critical, failed->detail()});
    }
    if (result.notice)
        messages.show(*result.notice);
    return result.made;
}

} // namespace vantrel
