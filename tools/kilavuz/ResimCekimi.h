#pragma once

#include <filesystem>

#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

#include "screen/EkranListesi.h"

class QWidget;

namespace velora {
struct Program;
}

namespace velora::kilavuz {

/// One picture of the guide: a window of the program as it stands in the middle of some work.
struct ResimTanimi {
    EkranAdi ekran;
    MetinBakis dosya;     ///< name of the picture's file, without its ending
    void (*ac)(Program&); ///< shows the screen, by the way that the program has to it
    void (*hazirla)(Program&, QWidget&) = nullptr; ///< runs while it stands: fills and chooses
    QSize boy{};                                   ///< of the window; without one it is as large as it comes
    QRect kesit{}; ///< the part of the window that is shown; without one all of it, under its title
};

/// The picture, or why there is none.
struct CekilenResim {
    QImage resim;
    QString hata;
};

/// Makes the firm of the pictures in an empty folder: always the same one, on always the same day, with so
/// many reservations for each hall and year.
bool FirmayiKur(const std::filesystem::path& kok, unsigned rezervasyon = 150);

/// Starts the program over that firm, shows one screen and takes its picture. Nothing is left on the display.
/// Needs an application with the look of the program. A box that comes up meanwhile is an error.
CekilenResim ResimCek(const std::filesystem::path& kok, const ResimTanimi& tanim);

} // namespace velora::kilavuz
