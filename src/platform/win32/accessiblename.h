// What screen readers call a part of a window.
#pragma once

#include <string>

#include <windows.h>

namespace duskmarch {

// `part` has no label that they could read instead. Needs COM on this thread.
void nameforreaders(HWND part, const std::wstring& name);

}  // namespace duskmarch
