#pragma once

// The state of the keyboard, as it was when the event came that is being handled: a slow program reads a quick key
// right too.
namespace Keyboard {

[[nodiscard]] bool AsyncShiftKey();

} // namespace Keyboard
