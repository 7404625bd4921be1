#include "setup/FormRenk.h"

#include <gtest/gtest.h>

#include "destek/Eylemler.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"

namespace velora::test {

class FormRenkTest : public ::testing::Test {
  protected:
    FormRenk& Secici() { return *program.FormRenk.Tut(); }
    /// The picker is expected next; `is` is done while it stands.
    void SeciciAcikken(std::function<void()> is) {
        ortam.Bekle(BeklenenEkran{EkranAdi::FormRenk, std::move(is)});
    }
    /// A click on the chart where it has this colour.
    void Tikla(RenkDegeri renk) {
        Secici().Picture1_MouseDown(renk);
        Secici().Picture1_MouseUp();
    }
    void MetinlerOlmali(const std::array<MetinBakis, 6>& beklenen) {
        EXPECT_EQ(Secici().txtRed.metin, beklenen[0]);
        EXPECT_EQ(Secici().txtGreen.metin, beklenen[1]);
        EXPECT_EQ(Secici().txtBlue.metin, beklenen[2]);
        EXPECT_EQ(Secici().txtWeb.metin, beklenen[3]);
        EXPECT_EQ(Secici().txtTers.metin, beklenen[4]);
        EXPECT_EQ(Secici().txtHex.metin, beklenen[5]);
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

TEST_F(FormRenkTest, Captions_stand_as_the_user_reads_them_and_all_texts_begin_at_zero) {
    EXPECT_EQ(Secici().baslik, u"Renk Seçiniz");
    EXPECT_EQ(Secici().Command1.baslik, u"Tamam");
    EXPECT_EQ(Secici().Command2.baslik, u"İptal");
    MetinlerOlmali({u"0", u"0", u"0", u"0", u"0", u"0"});
}

TEST_F(FormRenkTest, Pick_shows_the_colour_in_all_its_forms) {
    Tikla(6086641); // 5C DF F1 from the high byte down
    EXPECT_EQ(Secici().picColorBox.zemin, 6086641);
    MetinlerOlmali({u"241", u"223", u"92", u"#F1DF5C", u"&H5CDFF1&", u"5CDFF1"});
}

TEST_F(FormRenkTest, Hex_value_is_unpadded_and_the_other_two_are_padded) {
    Tikla(0x00000A);
    MetinlerOlmali({u"10", u"0", u"0", u"#0A0000", u"&H00000A&", u"A"});
    Tikla(0x008000);
    MetinlerOlmali({u"0", u"128", u"0", u"#008000", u"&H008000&", u"8000"});
    Tikla(0);
    MetinlerOlmali({u"0", u"0", u"0", u"#000000", u"&H000000&", u"0"});
    Tikla(0xFFFFFF);
    MetinlerOlmali({u"255", u"255", u"255", u"#FFFFFF", u"&HFFFFFF&", u"FFFFFF"});
}

TEST_F(FormRenkTest, Every_component_is_split_right) {
    for (int deger = 0; deger < 256; ++deger) {
        Tikla(deger + 256 * (255 - deger) + 65536 * (deger / 2));
        EXPECT_EQ(Secici().txtRed.metin, SayiMetni(deger));
        EXPECT_EQ(Secici().txtGreen.metin, SayiMetni(255 - deger));
        EXPECT_EQ(Secici().txtBlue.metin, SayiMetni(deger / 2));
    }
}

TEST_F(FormRenkTest, The_sample_and_the_other_values_follow_what_is_typed) {
    const AlanOlaylari olaylar{.degisti = [this] { Secici().Bilesen_Change(); }};
    AlanaYaz(Secici().txtRed, u"18", olaylar);
    AlanaYaz(Secici().txtGreen, u"7", olaylar);
    AlanaYaz(Secici().txtBlue, u"300", olaylar);
    EXPECT_EQ(Secici().picColorBox.zemin, 0xFF0712);
    MetinlerOlmali({u"18", u"7", u"300", u"#1207FF", u"&HFF0712&", u"FF0712"});
}

TEST_F(FormRenkTest, What_no_colour_is_made_from_cannot_be_typed_into) {
    for (const MetinKutusu* kutu : {&Secici().txtWeb, &Secici().txtHex, &Secici().txtTers}) {
        EXPECT_TRUE(kutu->kilitli);
        EXPECT_FALSE(kutu->beyazZemin);
    }
    EXPECT_FALSE(Secici().txtRed.kilitli);
}

TEST_F(FormRenkTest, Place_outside_the_chart_is_black) {
    Tikla(0xFFFFFF);
    Tikla(-1);
    EXPECT_EQ(Secici().picColorBox.zemin, 0);
    MetinlerOlmali({u"0", u"0", u"0", u"#000000", u"&H000000&", u"0"});
}

TEST_F(FormRenkTest, Move_picks_only_while_the_button_is_held) {
    Secici().Picture1_MouseMove(5);
    EXPECT_EQ(Secici().txtRed.metin, u"0");
    Secici().Picture1_MouseDown(5);
    Secici().Picture1_MouseMove(6);
    EXPECT_EQ(Secici().txtRed.metin, u"6");
    Secici().Picture1_MouseUp();
    Secici().Picture1_MouseMove(7);
    EXPECT_EQ(Secici().txtRed.metin, u"6");
}

TEST_F(FormRenkTest, Colour_box_opens_the_picker_with_its_colour_and_its_slot) {
    SeciciAcikken([this] {
        EXPECT_EQ(Secici().picColorBox.zemin, 12632256);
        EXPECT_EQ(Secici().Tag, u"17");
        Tikla(123);
        VELORA_BAS(program.FormRenk, Command1);
    });
    program.FormAyarlar->Renk_Click(17);
    EXPECT_EQ(program.FormAyarlar->Renk(17), 123);
    EXPECT_FALSE(program.FormRenk.Yuklu());
}

TEST_F(FormRenkTest, Ok_without_a_pick_gives_black_though_the_sample_shows_the_old_colour_as_is_meant) {
    SeciciAcikken([this] {
        EXPECT_EQ(Secici().picColorBox.zemin, 32768);
        VELORA_BAS(program.FormRenk, Command1);
    });
    program.FormAyarlar->Renk_Click(0);
    EXPECT_EQ(program.FormAyarlar->Renk(0), 0);
}

TEST_F(FormRenkTest, Cancel_after_a_pick_leaves_the_colour) {
    SeciciAcikken([this] {
        Tikla(123);
        VELORA_BAS(program.FormRenk, Command2);
    });
    program.FormAyarlar->Renk_Click(0);
    EXPECT_EQ(program.FormAyarlar->Renk(0), 32768);
    EXPECT_FALSE(program.FormRenk.Yuklu());
}

TEST_F(FormRenkTest, Typed_components_are_taken_and_stay_within_a_byte) {
    Secici().Tag = u"3";
    AlanaYaz(Secici().txtRed, u"10");
    AlanaYaz(Secici().txtGreen, u"999999999999");
    AlanaYaz(Secici().txtBlue, u"-5");
    VELORA_BAS(program.FormRenk, Command1);
    EXPECT_EQ(program.FormAyarlar->Renk(3), 0x00FF0A);
    Secici().Tag = u"3";
    AlanaYaz(Secici().txtRed, u"kırmızı");
    VELORA_BAS(program.FormRenk, Command1);
    EXPECT_EQ(program.FormAyarlar->Renk(3), 0);
}

TEST_F(FormRenkTest, Slot_that_is_not_there_changes_no_colour) {
    const auto once = program.FormAyarlar->renkler;
    for (const auto* tag : {u"25", u"-1", u"99999999999999999999"}) {
        Secici().Tag = tag;
        Tikla(123);
        VELORA_BAS(program.FormRenk, Command1);
        EXPECT_EQ(program.FormAyarlar->renkler, once);
    }
}

} // namespace velora::test
