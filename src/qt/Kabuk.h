#pragma once

#include <filesystem>

#include "storage/Metin.h"

namespace velora {

/// Opens a file in the program that the desktop has for it, which starts in the file's folder, and doesn't
/// wait. False when there is no such program, and when there is no such file: the desktop's opener starts all
/// the same and tells nobody.
bool DosyaAc(const std::filesystem::path& yol);

/// Opens a page of the web in the browser that the desktop has, and doesn't wait. False when there is none,
/// and for whatever is no address of http or https.
bool AdresAc(const Metin& adres);

/// Starts a program in its own folder, and doesn't wait for it. False when it hasn't been started: it isn't
/// there, or isn't one that this system can run.
bool ProgramCalistir(const std::filesystem::path& yol);

} // namespace velora
