#pragma once

#include "maintenance/FileDownloader.h"
#include "maintenance/IndirmeKomutu.h"
#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Internet'ten Yükle": fetches the published list of holidays into `Tatiller.dat`, and has it taken into
/// the list of `FormResmiTatil`. It begins as soon as it is shown.
struct FormResmiTatilYukle {
    explicit FormResmiTatilYukle(Program& program);

    void Load() {}
    void Activate();
    void Command_Click();  ///< "Durdur" or "Yeniden Dene"
    void Command1_Click(); ///< "İptal": gives the fetch up and unloads the screen

    Metin baslik = u"Internet'ten Yükle";
    Etiket Label1;
    IlerlemeCubugu ProgressBar;
    velora::FileDownloader FileDownloader;
    Dugme Command;
    Dugme Command1;

  private:
    IndirmeParcalari Parcalar() { return {Command, ProgressBar, FileDownloader}; }
    void Hata();
    void Tamamlandi();

    Program& program_;
};

} // namespace velora
