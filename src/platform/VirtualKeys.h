#pragma once

#include <QStringView>
#include <QtGlobal>

#include <algorithm>
#include <array>

namespace tarnloft {

// A key by the virtual code under which it is stored.
struct VirtualKey {
  quint32 code;
  QStringView name;    // as users read it
  quint32 keysym;      // of the X server and of xkb, without modifiers
  QStringView symbol;  // that one's name
  quint32 position;    // of the same key on a keyboard of the United States, by the kernel's code
};

// All that have a name, by code.
inline constexpr std::array virtualKeys{
    VirtualKey{0, u"A", 0x0061, u"a", 30},
    VirtualKey{1, u"S", 0x0073, u"s", 31},
    VirtualKey{2, u"D", 0x0064, u"d", 32},
    VirtualKey{3, u"F", 0x0066, u"f", 33},
    VirtualKey{4, u"H", 0x0068, u"h", 35},
    VirtualKey{5, u"G", 0x0067, u"g", 34},
    VirtualKey{6, u"Z", 0x007a, u"z", 44},
    VirtualKey{7, u"X", 0x0078, u"x", 45},
    VirtualKey{8, u"C", 0x0063, u"c", 46},
    VirtualKey{9, u"V", 0x0076, u"v", 47},
    VirtualKey{11, u"B", 0x0062, u"b", 48},
    VirtualKey{12, u"Q", 0x0071, u"q", 16},
    VirtualKey{13, u"W", 0x0077, u"w", 17},
    VirtualKey{14, u"E", 0x0065, u"e", 18},
    VirtualKey{15, u"R", 0x0072, u"r", 19},
    VirtualKey{16, u"Y", 0x0079, u"y", 21},
    VirtualKey{17, u"T", 0x0074, u"t", 20},
    VirtualKey{18, u"1", 0x0031, u"1", 2},
    VirtualKey{19, u"2", 0x0032, u"2", 3},
    VirtualKey{20, u"3", 0x0033, u"3", 4},
    VirtualKey{21, u"4", 0x0034, u"4", 5},
    VirtualKey{22, u"6", 0x0036, u"6", 7},
    VirtualKey{23, u"5", 0x0035, u"5", 6},
    VirtualKey{24, u"=", 0x003d, u"equal", 13},
    VirtualKey{25, u"9", 0x0039, u"9", 10},
    VirtualKey{26, u"7", 0x0037, u"7", 8},
    VirtualKey{27, u"-", 0x002d, u"minus", 12},
    VirtualKey{28, u"8", 0x0038, u"8", 9},
    VirtualKey{29, u"0", 0x0030, u"0", 11},
    VirtualKey{30, u"]", 0x005d, u"bracketright", 27},
    VirtualKey{31, u"O", 0x006f, u"o", 24},
    VirtualKey{32, u"U", 0x0075, u"u", 22},
    VirtualKey{33, u"[", 0x005b, u"bracketleft", 26},
    VirtualKey{34, u"I", 0x0069, u"i", 23},
    VirtualKey{35, u"P", 0x0070, u"p", 25},
    VirtualKey{36, u"Return", 0xff0d, u"Return", 28},
    VirtualKey{37, u"L", 0x006c, u"l", 38},
    VirtualKey{38, u"J", 0x006a, u"j", 36},
    VirtualKey{39, u"'", 0x0027, u"apostrophe", 40},
    VirtualKey{40, u"K", 0x006b, u"k", 37},
    VirtualKey{41, u";", 0x003b, u"semicolon", 39},
    VirtualKey{42, u"\\", 0x005c, u"backslash", 43},
    VirtualKey{43, u",", 0x002c, u"comma", 51},
    VirtualKey{44, u"/", 0x002f, u"slash", 53},
    VirtualKey{45, u"N", 0x006e, u"n", 49},
    VirtualKey{46, u"M", 0x006d, u"m", 50},
    VirtualKey{47, u".", 0x002e, u"period", 52},
    VirtualKey{48, u"Tab", 0xff09, u"Tab", 15},
    VirtualKey{49, u"Space", 0x0020, u"space", 57},
    VirtualKey{50, u"`", 0x0060, u"grave", 41},
    VirtualKey{51, u"Delete", 0xff08, u"BackSpace", 14},
    VirtualKey{53, u"Esc", 0xff1b, u"Escape", 1},
    VirtualKey{96, u"F5", 0xffc2, u"F5", 63},
    VirtualKey{97, u"F6", 0xffc3, u"F6", 64},
    VirtualKey{98, u"F7", 0xffc4, u"F7", 65},
    VirtualKey{99, u"F3", 0xffc0, u"F3", 61},
    VirtualKey{100, u"F8", 0xffc5, u"F8", 66},
    VirtualKey{101, u"F9", 0xffc6, u"F9", 67},
    VirtualKey{103, u"F11", 0xffc8, u"F11", 87},
    VirtualKey{109, u"F10", 0xffc7, u"F10", 68},
    VirtualKey{111, u"F12", 0xffc9, u"F12", 88},
    VirtualKey{115, u"Home", 0xff50, u"Home", 102},
    VirtualKey{116, u"PageUp", 0xff55, u"Page_Up", 104},
    VirtualKey{117, u"⌦", 0xffff, u"Delete", 111},
    VirtualKey{118, u"F4", 0xffc1, u"F4", 62},
    VirtualKey{119, u"End", 0xff57, u"End", 107},
    VirtualKey{120, u"F2", 0xffbf, u"F2", 60},
    VirtualKey{121, u"PageDown", 0xff56, u"Page_Down", 109},
    VirtualKey{122, u"F1", 0xffbe, u"F1", 59},
    VirtualKey{123, u"←", 0xff51, u"Left", 105},
    VirtualKey{124, u"→", 0xff53, u"Right", 106},
    VirtualKey{125, u"↓", 0xff54, u"Down", 108},
    VirtualKey{126, u"↑", 0xff52, u"Up", 103},
};

// Null for a code without a name.
inline const VirtualKey* virtualKey(quint32 code) {
  const auto found = std::ranges::find(virtualKeys, code, &VirtualKey::code);
  return found == virtualKeys.end() ? nullptr : &*found;
}

}  // namespace tarnloft
