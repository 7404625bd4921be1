#include "maintenance/KlasorIzleme.h"

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

class KlasorIzlemeTest : public ::testing::Test {
  protected:
    void Kutu(const Metin& metin) { ortam.Bekle(BeklenenKutu{u"Velora", metin}); }
    const Metin basladi = u"Beginning watching of folder /salonlar .. press OK";
    const Metin bitti = u"Watching has been terminated for /salonlar";

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2026}, std::chrono::month{3}, std::chrono::day{9}}};
    Program program{ortam.Ver(), agac.Kok()};
    KlasorIzleme izleme{program};
};

TEST_F(KlasorIzlemeTest, Each_change_is_told_until_it_is_stopped) {
    Kutu(basladi);
    Kutu(u"The watched directory has been changed.  Resuming watch...");
    Kutu(u"The watched directory has been changed again.");
    Kutu(u"The watched directory has been changed again.");
    Kutu(bitti);
    ortam.olayda = [this](int sira) {
        EXPECT_EQ(ortam.izlenen, std::filesystem::path("/salonlar"));
        ortam.klasorDegisti = sira == 2 || sira == 5 || sira == 6;
        if (sira == 9)
            izleme.Dur();
    };
    izleme.Basla(u"/salonlar");
    EXPECT_EQ(ortam.olaySayisi, 10); // and one within the stopping
    EXPECT_TRUE(ortam.izlenen.empty());
}

TEST_F(KlasorIzlemeTest, Stopped_before_anything_changed_it_says_so) {
    Kutu(basladi);
    Kutu(bitti);
    ortam.olayda = [this](int sira) {
        if (sira == 3)
            izleme.Dur();
    };
    izleme.Basla(u"/salonlar");
}

TEST_F(KlasorIzlemeTest, The_end_of_the_program_ends_it_without_a_word) {
    Kutu(basladi);
    ortam.olayda = [this](int sira) { ortam.bitti = sira == 4; };
    izleme.Basla(u"/salonlar");
    EXPECT_EQ(ortam.olaySayisi, 4);
}

TEST_F(KlasorIzlemeTest, A_folder_that_cannot_be_watched_hangs_nothing) {
    ortam.izlenir = false;
    Kutu(basladi);
    Kutu(bitti);
    izleme.Basla(u"/salonlar");
}

TEST_F(KlasorIzlemeTest, A_second_one_that_begins_meanwhile_does_nothing) {
    Kutu(basladi);
    Kutu(bitti);
    ortam.olayda = [this](int sira) {
        if (sira == 1)
            izleme.Basla(u"/öteki");
        if (sira == 2)
            izleme.Dur();
    };
    izleme.Basla(u"/salonlar");
}

TEST_F(KlasorIzlemeTest, It_begins_again_after_it_was_stopped) {
    ortam.olayda = [this](int sira) {
        if (sira == 1 || sira == 4)
            izleme.Dur();
    };
    for (int kez = 0; kez < 2; ++kez) {
        Kutu(basladi);
        Kutu(bitti);
        izleme.Basla(u"/salonlar");
    }
    EXPECT_GE(ortam.olaySayisi, 4);
}

TEST_F(KlasorIzlemeTest, It_looks_for_texts_and_shows_none) {
    agac.Koy(u"izlenen/a.dat", "a");
    agac.Koy(u"izlenen/notlar.txt", "n");
    const Metin klasor = YolMetni(agac.Yol(u"izlenen"));
    Kutu(u"Beginning watching of folder " + klasor + u" .. press OK");
    Kutu(u"Watching has been terminated for " + klasor);
    ortam.olayda = [this](int) { izleme.Dur(); };
    ortam.izlenir = false;
    izleme.Basla(klasor);
    EXPECT_EQ(izleme.bulunan, u"notlar.txt");
}

TEST_F(KlasorIzlemeTest, It_looks_for_texts_once_more_at_the_first_change_and_no_further) {
    agac.Koy(u"izlenen/a.dat", "a");
    const Metin klasor = YolMetni(agac.Yol(u"izlenen"));
    Kutu(u"Beginning watching of folder " + klasor + u" .. press OK");
    ortam.Bekle(BeklenenKutu{.baslik = u"Velora",
                             .metin = u"The watched directory has been changed.  Resuming watch...",
                             .is = [&] { EXPECT_EQ(izleme.bulunan, u"yeni.txt"); }});
    Kutu(u"The watched directory has been changed again.");
    Kutu(u"Watching has been terminated for " + klasor);
    ortam.olayda = [&](int sira) {
        if (sira == 1) {
            EXPECT_EQ(izleme.bulunan, u"");
            agac.Koy(u"izlenen/yeni.txt", "y");
        }
        if (sira == 2)
            std::filesystem::remove(agac.Yol(u"izlenen/yeni.txt"));
        ortam.klasorDegisti = sira < 3;
        if (sira == 3)
            izleme.Dur();
    };
    izleme.Basla(klasor);
    EXPECT_EQ(izleme.bulunan, u"yeni.txt");
}

} // namespace velora::test
