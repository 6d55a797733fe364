#pragma once

#include <string>
#include <vector>

namespace tarnloft {

// Loads what text in drawings wants from the system besides fonts: the table of fonts, and the
// encodings that are still met.
void prepareSurroundings();

// Where fonts and what belongs to them are.
std::vector<std::string> foldersOfFonts();

}  // namespace tarnloft
