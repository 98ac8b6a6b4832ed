#pragma once

#include "platform/ui/MenuBar.h"

// For the layer itself: the commands cut, copy and paste on the text field that has the focus.
namespace standardedit {

// Whether a field has the focus and the command would do something there.
[[nodiscard]] bool CanDo(MenuItemKind kind);

void Do(MenuItemKind kind);

} // namespace standardedit
