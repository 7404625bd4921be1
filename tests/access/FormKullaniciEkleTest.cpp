#include "access/FormKullaniciEkle.h"

#include "access/AccessTest.h"
#include "access/Yetkiler.h"

namespace velora::test {

class FormKullaniciEkleTest : public AccessTest {
  protected:
    FormKullaniciEkleTest() { KullaniciKoy(admin + can); }

    void EkleAc(const std::function<void()>& is) {
        EkleAcikken(is);
        Kullanicilar();
        VELORA_BAS(program.FormKullanicilar, Command1);
    }
    void Duzenle(int sira, const std::function<void()>& is) {
        EkleAcikken(is);
        Isaretle(sira);
        VELORA_BAS(program.FormKullanicilar, Command3);
    }
    std::string Degerleri() {
        std::string degerler;
        for (const OnayKutusu& kutu : Ekle().Check)
            degerler += std::to_string(kutu.deger);
        return degerler;
    }
    /// "+" for each box that can be ticked.
    std::string Acikligi() {
        std::string aciklar;
        for (const OnayKutusu& kutu : Ekle().Check)
            aciklar += kutu.etkin ? '+' : '-';
        return aciklar;
    }

    const std::string admin = Satir("admin", "g\xFCl5", "11111111101");
    const std::string can = Satir("can", "c9", "10101100201");
};

TEST_F(FormKullaniciEkleTest, Captions_and_limits_stand_as_the_user_meets_them) {
    EXPECT_EQ(Ekle().baslik, u"Yeni Kullanıcı Ekle / Düzenle");
    EXPECT_EQ(Ekle().Label8.baslik, u"Kullanıcı Ekle");
    EXPECT_EQ(Ekle().Text1.baslik, u"Kullanıcı Adı");
    EXPECT_EQ(Ekle().Text2.baslik, u"Parola");
    EXPECT_EQ(Ekle().Text3.baslik, u"Parola (Tekrar)");
    for (const MetinKutusu* alan : {&Ekle().Text1, &Ekle().Text2, &Ekle().Text3})
        EXPECT_EQ(alan->enUzun, 10);
    EXPECT_FALSE(Ekle().Text1.yildizli);
    EXPECT_TRUE(Ekle().Text2.yildizli && Ekle().Text3.yildizli);
    EXPECT_EQ(Ekle().Command1.baslik, u"Tamam");
    EXPECT_EQ(Ekle().Command2.baslik, u"İptal");
    EXPECT_EQ(Ekle().Check[9].baslik, u"Rezervasyon ücretlerini değiştirebilsin");
    EXPECT_EQ(Ekle().Check[11].baslik, u"Kasa raporu alabilsin");
}

TEST_F(FormKullaniciEkleTest, New_user_starts_with_all_rights_but_the_tenth_and_the_third_cannot_be_taken) {
    EkleAc([&] {
        EXPECT_EQ(Ekle().Tag, u"");
        EXPECT_EQ(Degerleri(), "11111111101");
        EXPECT_EQ(Acikligi(), "++-++++++++");
    });
}

TEST_F(FormKullaniciEkleTest, New_user_goes_to_the_end_of_list_and_file_at_once_just_as_typed) {
    EkleAc([&] {
        for (const int no : {1, 5, 11})
            Tikla(Ekle().Check[no]);
        GirVeTamam(u" Ayşe ", u" ç 7", u" ç 7");
        EXPECT_FALSE(program.FormKullaniciEkle.Yuklu());
    });
    EXPECT_EQ(Liste().back().front(), u" Ayşe ");
    EXPECT_EQ(Dosya(), admin + can + Satir(" Ay\xFE\x65 ", " \xE7 7", "01110111100"));
}

TEST_F(FormKullaniciEkleTest, What_is_missing_is_asked_for_in_order_and_gets_the_focus) {
    EkleAc([&] {
        KutuBekle(u"Lütfen kullanıcı adı giriniz!");
        GirVeTamam(u"  ", u"x", u"y");
        KutuBekle(u"Lütfen parola giriniz!");
        GirVeTamam(u"ali", u"  ", u"y");
        KutuBekle(u"Lütfen parola (Tekrar) giriniz!");
        GirVeTamam(u"ali", u"x", u" ");
        KutuBekle(u"Lütfen parola tekrarını kontrol ediniz!");
        GirVeTamam(u"ali", u"x", u"x ");
        EXPECT_TRUE(program.FormKullaniciEkle.Yuklu());
    });
    EXPECT_EQ(ortam.odaklar, (std::vector<Metin>{u"Text1", u"Text2", u"Text3", u"Text3"}));
    EXPECT_EQ(ortam.odakEkranlari, std::vector(4, EkranAdi::FormKullaniciEkle));
    EXPECT_EQ(Dosya(), admin + can);
}

TEST_F(FormKullaniciEkleTest, Edited_user_comes_with_name_password_and_rights_and_keeps_a_two) {
    Duzenle(1, [&] {
        EXPECT_EQ(Ekle().Tag, u"1");
        EXPECT_EQ(Ekle().Text1.metin, u"can");
        EXPECT_EQ(Ekle().Text2.metin, u"c9");
        EXPECT_EQ(Ekle().Text3.metin, u"c9");
        EXPECT_EQ(Degerleri(), "10101100201");
        EXPECT_EQ(Acikligi(), "++-++++++++");
        EXPECT_TRUE(Ekle().Text1.etkin);
        Tikla(Ekle().Check[2]);
        GirVeTamam(u"cem", u"d8", u"d8");
    });
    EXPECT_EQ(Dosya(), admin + Satir("cem", "d8", "11101100201"));
    EXPECT_EQ(Liste().size(), 2U);
}

TEST_F(FormKullaniciEkleTest, Of_admin_only_the_password_can_change) {
    Duzenle(0, [&] {
        EXPECT_FALSE(Ekle().Text1.etkin);
        EXPECT_TRUE(Ekle().Text2.etkin && Ekle().Text3.etkin);
        EXPECT_EQ(Acikligi(), "-----------");
        AlanaYaz(Ekle().Text2, u"yeni");
        AlanaYaz(Ekle().Text3, u"yeni");
        VELORA_BAS(program.FormKullaniciEkle, Command1);
    });
    EXPECT_EQ(Dosya(), Satir("admin", "yeni", "11111111101") + can);
}

TEST_F(FormKullaniciEkleTest, Rights_that_are_no_number_come_as_none_and_are_written_so) {
    KullaniciKoy(
        "\"ali\",\"a1\",\"x\",\"\",\"0\",\"1\",\"9999999999999\",\"-1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n");
    Duzenle(0, [&] {
        EXPECT_EQ(Ekle().Check[1].deger, 0);
        EXPECT_EQ(Ekle().Check[2].deger, 0);
        EXPECT_EQ(Ekle().Check[3].deger, 0) << "taken by the file, and not to be given back here";
        EXPECT_FALSE(Ekle().Check[3].etkin);
        EXPECT_EQ(Ekle().Check[6].deger, -1);
        VELORA_BAS(program.FormKullaniciEkle, Command1);
    });
    EXPECT_EQ(
        Dosya(),
        "\"ali\",\"a1\",\"0\",\"0\",\"0\",\"1\",\"1000000000\",\"-1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n");
}

TEST_F(FormKullaniciEkleTest, Two_users_of_one_name_are_taken_as_is_meant) {
    EkleAc([&] { GirVeTamam(u"can", u"c9", u"c9"); });
    EXPECT_EQ(Dosya(), admin + can + Satir("can", "c9", "11111111101"));
}

TEST_F(FormKullaniciEkleTest, Quote_in_a_password_is_written_raw_and_slides_the_next_reading_as_is_meant) {
    EkleAc([&] { GirVeTamam(u"ali", u"a\"b", u"a\"b"); });
    EXPECT_EQ(Dosya(), admin + can + Satir("ali", "a\"b", "11111111101"));
    VELORA_BAS(program.FormKullanicilar, Command5);
    EXPECT_EQ(Liste().at(2).at(1), u"a");
    EXPECT_EQ(Liste().at(2).at(2), u"b\"");
}

TEST_F(FormKullaniciEkleTest, Place_that_is_not_in_the_list_changes_nobody) {
    Duzenle(1, [&] {
        Ekle().Tag = u"7";
        GirVeTamam(u"cem", u"d8", u"d8");
    });
    EXPECT_EQ(Dosya(), admin + can);
}

TEST_F(FormKullaniciEkleTest, Place_of_blanks_adds_as_none_does) {
    EkleAc([&] {
        Ekle().Tag = u"  ";
        GirVeTamam(u"ali", u"a1", u"a1");
    });
    EXPECT_EQ(Dosya(), admin + can + Satir("ali", "a1", "11111111101"));
}

TEST_F(FormKullaniciEkleTest, Cancel_unloads_and_changes_nothing) {
    EkleAc([&] {
        AlanaYaz(Ekle().Text1, u"ali");
        VELORA_BAS(program.FormKullaniciEkle, Command2);
        EXPECT_FALSE(program.FormKullaniciEkle.Yuklu());
    });
    EXPECT_EQ(Dosya(), admin + can);
}

} // namespace velora::test
