#include "access/FormKullanicilar.h"

#include "access/AccessTest.h"
#include "destek/Ariza.h"
#include "storage/VeriAgaci.h"

namespace velora::test {

class FormKullanicilarTest : public AccessTest {
  protected:
    const std::string admin = Satir("admin", "g\xFCl5", "11111111101");
    const std::string ayse = Satir("Ay\xFE\x65", "\xE7\x61y 7", "01010011010");
    const std::string can = Satir("can", "c9", "10101100201");
    const Metin kSilinsinMi = u"Seçili kullanıcıyı silmek istediğinizden emin misiniz?";

    void KullaniciSil(int sira, Cevap cevap) {
        Isaretle(sira);
        ortam.Bekle(BeklenenKutu{u"Velora", kSilinsinMi, Simge::Soru, cevap});
        VELORA_BAS(program.FormKullanicilar, Command2);
        EXPECT_EQ(ortam.hayirdaBaslayanlar.back(), kSilinsinMi);
    }
};

TEST_F(FormKullanicilarTest, Captions_stand_as_the_user_reads_them) {
    EXPECT_EQ(Kullanicilar().baslik, u"Kullanıcı Tanımları");
    EXPECT_EQ(Kullanicilar().Liste.basliklar,
              (std::vector<Metin>{u"Kullanıcı Adı", u"Parola", u"Y1", u"Y2", u"Y3", u"Y4", u"Y5", u"Y6",
                                  u"Y7", u"Y8", u"Y9", u"Y10", u"Y11"}));
    EXPECT_EQ(Kullanicilar().Command1.baslik, u"Ekle");
    EXPECT_EQ(Kullanicilar().Command2.baslik, u"Sil");
    EXPECT_EQ(Kullanicilar().Command3.baslik, u"Düzenle");
    EXPECT_EQ(Kullanicilar().Command4.baslik, u"Kapat");
    EXPECT_EQ(Kullanicilar().Command5.baslik, u"Listele");
    EXPECT_EQ(Kullanicilar().Command6.baslik, u"Kaydet");
}

TEST_F(FormKullanicilarTest, Users_are_listed_in_the_order_of_the_file_with_their_passwords) {
    KullaniciKoy(can + admin + ayse);
    EXPECT_EQ(
        Liste(),
        (Satirlar{{u"can", u"c9", u"1", u"0", u"1", u"0", u"1", u"1", u"0", u"0", u"2", u"0", u"1"},
                  {u"admin", u"gül5", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"0", u"1"},
                  {u"Ayşe", u"çay 7", u"0", u"1", u"0", u"1", u"0", u"0", u"1", u"1", u"0", u"1", u"0"}}));
}

TEST_F(FormKullanicilarTest, Listing_again_takes_the_file_as_it_is_now_and_drops_the_mark) {
    KullaniciKoy(admin + ayse);
    Isaretle(1);
    KullaniciKoy(admin + can + ayse);
    VELORA_BAS(program.FormKullanicilar, Command5);
    EXPECT_EQ(Liste().size(), 3U);
    EXPECT_EQ(Kullanicilar().Liste.secili, -1);
}

TEST_F(FormKullanicilarTest, Saving_writes_what_is_listed_as_it_was_read) {
    KullaniciKoy(admin + ayse + can);
    Kullanicilar();
    KullaniciKoy("");
    VELORA_BAS(program.FormKullanicilar, Command6);
    EXPECT_EQ(Dosya(), admin + ayse + can);
}

TEST_F(FormKullanicilarTest, User_with_a_blank_name_is_gone_at_the_next_save_as_is_meant) {
    KullaniciKoy(admin + Satir("  ", "x", "11111111111") + can);
    Kullanicilar().Command6_Click();
    EXPECT_EQ(Dosya(), admin + can);
}

TEST_F(FormKullanicilarTest, What_could_not_be_read_is_not_written_over_until_it_is_listed_again) {
    KullaniciKoy(admin + can);
    const auto ali = [&] { GirVeTamam(u"ali", u"a1", u"a1"); };
    const auto bozuldu = BirKezOkunmaz(program.dosyalar, kKullaniciDosyasi);
    EXPECT_TRUE(Liste().empty());
    EXPECT_TRUE(*bozuldu);
    EkleAcikken(ali);
    VELORA_BAS(program.FormKullanicilar, Command1);
    EXPECT_EQ(Liste().size(), 1U) << "what is shown is what is entered";
    EXPECT_EQ(Dosya(), admin + can);
    VELORA_BAS(program.FormKullanicilar, Command5);
    EkleAcikken(ali);
    VELORA_BAS(program.FormKullanicilar, Command1);
    EXPECT_EQ(Dosya(), admin + can + Satir("ali", "a1", "11111111101"));
}

TEST_F(FormKullanicilarTest, Click_on_a_user_opens_edit_and_delete_and_on_admin_edit_alone) {
    KullaniciKoy(admin + can);
    program.FormKullanicilar.Goster();
    EXPECT_FALSE(Kullanicilar().Command2.etkin);
    EXPECT_FALSE(Kullanicilar().Command3.etkin);
    Isaretle(-1);
    EXPECT_FALSE(Kullanicilar().Command3.etkin) << "a click beside the rows";
    Isaretle(1);
    EXPECT_TRUE(Kullanicilar().Command2.etkin);
    EXPECT_TRUE(Kullanicilar().Command3.etkin);
    Isaretle(0);
    EXPECT_FALSE(Kullanicilar().Command2.etkin) << "admin can't be deleted";
    EXPECT_TRUE(Kullanicilar().Command3.etkin);
}

TEST_F(FormKullanicilarTest, Name_of_admin_counts_with_its_case) {
    KullaniciKoy(admin + Satir("Admin", "x", "11111111111"));
    Isaretle(1);
    EXPECT_TRUE(Kullanicilar().Command2.etkin);
}

TEST_F(FormKullanicilarTest, Both_buttons_are_off_again_when_a_dialogue_over_the_list_has_closed) {
    KullaniciKoy(admin + can);
    program.FormKullanicilar.Goster();
    Isaretle(1);
    EkleAcikken({});
    VELORA_BAS(program.FormKullanicilar, Command3);
    EXPECT_FALSE(Kullanicilar().Command2.etkin);
    EXPECT_FALSE(Kullanicilar().Command3.etkin);
}

TEST_F(FormKullanicilarTest, Double_click_edits_only_while_the_button_is_enabled) {
    KullaniciKoy(admin + can);
    program.FormKullanicilar.Goster();
    Kullanicilar().Liste.secili = 1;
    Kullanicilar().Liste_DblClick();
    Isaretle(1);
    EkleAcikken({});
    Kullanicilar().Liste_DblClick();
}

TEST_F(FormKullanicilarTest, Deleted_user_is_gone_from_list_and_file) {
    KullaniciKoy(admin + ayse + can);
    KullaniciSil(1, Cevap::Evet);
    EXPECT_EQ(Liste().size(), 2U);
    EXPECT_EQ(Dosya(), admin + can);
    EXPECT_FALSE(Kullanicilar().Command2.etkin);
    EXPECT_FALSE(Kullanicilar().Command3.etkin);
}

TEST_F(FormKullanicilarTest, No_deletes_nothing_and_leaves_both_buttons_on_as_is_meant) {
    KullaniciKoy(admin + ayse);
    KullaniciSil(1, Cevap::Hayir);
    EXPECT_EQ(Dosya(), admin + ayse);
    EXPECT_EQ(Liste().size(), 2U);
    EXPECT_TRUE(Kullanicilar().Command2.etkin);
    EXPECT_TRUE(Kullanicilar().Command3.etkin);
}

TEST_F(FormKullanicilarTest, Deleting_the_last_ordinary_user_leaves_admin) {
    KullaniciKoy(admin + ayse);
    KullaniciSil(1, Cevap::Evet);
    EXPECT_EQ(Dosya(), admin);
}

TEST_F(FormKullanicilarTest, Close_unloads_the_screen) {
    Kullanicilar();
    VELORA_BAS(program.FormKullanicilar, Command4);
    EXPECT_FALSE(program.FormKullanicilar.Yuklu());
}

TEST_F(FormKullanicilarTest, File_that_cannot_be_written_stays_and_nothing_is_said) {
    KullaniciKoy(admin + ayse);
    Kullanicilar();
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    KullaniciSil(1, Cevap::Evet);
    EXPECT_EQ(Dosya(), admin + ayse);
    EXPECT_EQ(Liste().size(), 1U);
}

} // namespace velora::test
