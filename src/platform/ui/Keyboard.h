#pragma once

namespace Keyboard {

// What Asc gives for the text of a key that types nothing; see Keys.h.
constexpr int Backspace = 8;
constexpr int Tab = 9;
constexpr int Up = 30;
constexpr int Down = 31;
constexpr int Delete = 127;

// Whether the shift key was down when the event came that is being handled: a slow program reads a quick key right too.
[[nodiscard]] bool AsyncShiftKey();

} // namespace Keyboard
