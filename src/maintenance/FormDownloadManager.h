#pragma once

#include "maintenance/FileDownloader.h"
#include "maintenance/IndirmeKomutu.h"
#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// Fetches a new version of the program into `VeloraYeni.exe`, has a backup taken, and starts `Update.exe`,
/// which does the rest. It begins as soon as it is shown. Neither program is tested in any way.
///
/// Who closes it before the backup has begun gets neither backup nor update; what was fetched whole stays.
/// Closed while the backup is taken it stops nothing: the updater starts behind it.
struct FormDownloadManager {
    explicit FormDownloadManager(Program& program);

    void Load() {}
    void Activate();
    void Command_Click(); ///< "Durdur" or "Yeniden Dene"
    void Timer1_Tick();   ///< a step of the bar in front of the backup
    void Kapat();         ///< the window is closed: gives the fetch up and unloads the screen

    Metin baslik = u"Velora Yeni Sürüm";
    Etiket Label8; ///< the heading within the screen
    Etiket Label1; ///< what goes on
    IlerlemeCubugu ProgressBar;
    velora::FileDownloader FileDownloader;
    Dugme Command;
    Zamanlayici Timer1;

  private:
    IndirmeParcalari Parcalar() { return {Command, ProgressBar, FileDownloader}; }
    void Hata();
    void Tamamlandi();
    void YedekleVeGuncelle();

    Program& program_;
};

} // namespace velora
