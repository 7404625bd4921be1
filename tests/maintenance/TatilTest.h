#pragma once

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "maintenance/FormResmiTatil.h"
#include "maintenance/FormResmiTatilEkle.h"
#include "maintenance/FormResmiTatilYukle.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "table/FormTablo.h"

namespace velora::test {

/// A firm with a hall, two general holidays and one of its own. It is 15 June 2012.
class TatilTest : public ::testing::Test {
  protected:
    TatilTest() {
        agac.Koy(u"Tatiller.dll", kTatiller);
        agac.Koy(u"Adresler.dat", "\"\",\"http://site.test\",\"\",\"\"\r\n");
        agac.Koy(u"Salon.dat", "\"G\xFCl\"\r\n");
    }

    static constexpr std::string_view kTatiller =
        "\"23.04.2010\",\"\xC7ocuk Bayram\xFD\",\"Evet\",\"Genel\"\r\n"
        "\"05.06.2012\",\"Kurulu\xFE\",\"Hay\xFDr\",\"\xD6zel\"\r\n"
        "\"19.05.2010\",\"Gen\xE7lik\",\"Evet\",\"Genel\"\r\n";

    FormResmiTatil& Tatil() { return *program.FormResmiTatil.Tut(); }
    /// The names of the list's rows, in their order.
    std::vector<Metin> Adlar() {
        std::vector<Metin> adlar;
        for (const ListeSatiri& satir : Tatil().Liste.satirlar)
            adlar.push_back(satir.sutun[1]);
        return adlar;
    }
    /// What the table says of a day in its day slot.
    Metin Ipucu(int ay, int gun) { return program.FormTablo->Gozu(ay, GunduzGece::Gunduz, gun).ipucu; }
    using Liste = std::vector<Metin>;

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

} // namespace velora::test
