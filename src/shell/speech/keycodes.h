// Virtual key codes and the modifier mask.
#pragma once

namespace duskmarch {

namespace key {
inline constexpr int backspace = 8;
inline constexpr int tab = 9;
inline constexpr int enter = 13;
inline constexpr int shift = 16;
inline constexpr int ctrl = 17;
inline constexpr int escape = 27;
inline constexpr int space = 32;
inline constexpr int pageup = 33;
inline constexpr int pagedown = 34;
inline constexpr int end = 35;
inline constexpr int home = 36;
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
inline constexpr int del = 46;
inline constexpr int b = 66;
inline constexpr int c = 67;
inline constexpr int d = 68;
inline constexpr int e = 69;
inline constexpr int g = 71;
inline constexpr int h = 72;
inline constexpr int i = 73;
inline constexpr int l = 76;
inline constexpr int m = 77;
inline constexpr int n = 78;
inline constexpr int r = 82;
inline constexpr int t = 84;
inline constexpr int v = 86;
inline constexpr int x = 88;
inline constexpr int z = 90;
inline constexpr int keypadplus = 107;
inline constexpr int keypadminus = 109;
inline constexpr int f1 = 112;
inline constexpr int f2 = 113;
inline constexpr int f3 = 114;
inline constexpr int f4 = 115;
inline constexpr int f5 = 116;
inline constexpr int f6 = 117;
inline constexpr int f7 = 118;
inline constexpr int f8 = 119;
inline constexpr int f9 = 120;
inline constexpr int f11 = 122;
inline constexpr int equals = 187;
inline constexpr int comma = 188;
inline constexpr int minus = 189;
inline constexpr int period = 190;
inline constexpr int leftbracket = 219;
inline constexpr int rightbracket = 221;
}  // namespace key

namespace modifier {
inline constexpr int none = 0;
inline constexpr int shift = 1;
inline constexpr int ctrl = 2;
inline constexpr int alt = 4;
}  // namespace modifier

}  // namespace duskmarch
