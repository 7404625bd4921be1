#pragma once

#include <filesystem>

namespace velora {

/// Opens a file in the program that the desktop has for it, and doesn't wait. Where there is no such program,
/// nothing happens.
void DosyaAc(const std::filesystem::path& yol);

} // namespace velora
