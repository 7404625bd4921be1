#pragma once

#include <filesystem>

namespace velora {

/// Opens a file in the program that the desktop has for it, and doesn't wait. False when there is no such
/// program, and when there is no such file: the desktop's opener starts all the same and tells nobody.
bool DosyaAc(const std::filesystem::path& yol);

} // namespace velora
