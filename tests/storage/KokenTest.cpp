#include "storage/Koken.h"

#include <gtest/gtest.h>

#include "destek/Ariza.h"
#include "storage/AlanDosyasi.h"
#include "storage/DosyaAgaci.h"
#include "storage/KodSayfasi.h"
#include "storage/ListeDosyasi.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/dosya/YazmaAkisi.h"

// What was read, what wasn't there and what couldn't be read, and what each of them lets be written.
namespace velora::test {

namespace {

struct KotuAgac : DosyaAgaci {
    /// The next reading fails, whatever is read.
    void BirKezOkunmasin() { BirKezOkunmaz(dosyalar, u""); }
    Okunus Durumu(MetinBakis ad) const { return dosyalar.SonucluOku(TamYol(ad)).okunus; }
};

} // namespace

TEST(SonucluOku, A_file_that_is_there_comes_with_its_bytes) {
    const KotuAgac kok;
    kok.Koy(u"a", "\"bir\"\r\n");
    kok.Koy(u"bos", "");
    const OkumaSonucu sonuc = kok.dosyalar.SonucluOku(kok.TamYol(u"a"));
    EXPECT_EQ(sonuc.okunus, Okunus::Okundu);
    EXPECT_EQ(sonuc.bayt, "\"bir\"\r\n");
    EXPECT_EQ(kok.Durumu(u"bos"), Okunus::Okundu);
}

TEST(SonucluOku, A_name_that_is_not_in_its_folder_and_a_folder_that_is_not_there_are_not_there) {
    const KotuAgac kok;
    kok.Koy(u"a", "dosya");
    kok.KlasorKoy(u"k");
    for (const MetinBakis ad : {u"yok", u"k\\yok", u"yok\\a", u"a\\b"})
        EXPECT_EQ(kok.Durumu(ad), Okunus::Yok) << KodYaz(ad);
    EXPECT_EQ(Dosyalar(kok.Kok() / "yok").SonucluOku(YolMetni(kok.Kok() / "yok") + u"\\a").okunus,
              Okunus::Yok);
}

TEST(SonucluOku, A_folder_of_that_name_a_refused_path_and_a_file_too_long_could_not_be_read) {
    const KotuAgac kok;
    kok.KlasorKoy(u"k");
    kok.Koy(u"uzun", "x");
    std::filesystem::resize_file(kok.Yol(u"uzun"), kEnUzunOkuma + 1);
    for (const MetinBakis ad : {u"k", u"..", u"a:b", u"uzun"})
        EXPECT_EQ(kok.Durumu(ad), Okunus::Okunamadi) << KodYaz(ad);
    EXPECT_EQ(kok.dosyalar.SonucluOku(u"baska").okunus, Okunus::Okunamadi);
    EXPECT_EQ(kok.dosyalar.SonucluOku(kok.dosyalar.Kok()).okunus, Okunus::Okunamadi);
}

TEST(SonucluOku, A_disk_that_fails_gives_neither_bytes_nor_a_missing_file) {
    KotuAgac kok;
    kok.Koy(u"a", "x");
    for (const MetinBakis ad : {u"a", u"yok"}) {
        kok.BirKezOkunmasin();
        EXPECT_EQ(kok.Durumu(ad), Okunus::Okunamadi);
    }
    EXPECT_EQ(kok.Durumu(u"a"), Okunus::Okundu) << "the next time";
}

TEST(DosyalarYaz, A_missing_folder_does_not_make_a_write_succeed) {
    const KotuAgac kok;
    kok.Koy(u"a", "dosya");
    for (const MetinBakis ad : {u"yok\\b", u"a\\b"}) {
        EXPECT_FALSE(kok.dosyalar.Yaz(kok.TamYol(ad), "x"));
        EXPECT_FALSE(kok.dosyalar.Ekle(kok.TamYol(ad), "x"));
        EXPECT_EQ(kok.dosyalar.AkisAc(kok.TamYol(ad)), nullptr);
    }
    EXPECT_EQ(kok.Resim(), "a\ndosya\n");
}

TEST(Koken, What_was_read_what_was_not_there_and_what_nobody_has_read_may_be_written) {
    const KotuAgac kok;
    kok.Koy(u"a", "eski");
    for (const MetinBakis ad : {u"a", u"yeni"}) {
        Koken koken;
        EXPECT_EQ(koken.Oku(kok.dosyalar, kok.TamYol(ad)).has_value(), ad == u"a");
        EXPECT_TRUE(koken.Yazilir());
        EXPECT_TRUE(koken.Yaz(kok.dosyalar, kok.TamYol(ad), "b"));
        EXPECT_EQ(kok.Oku(ad), "b");
    }
    EXPECT_TRUE(Koken().Yaz(kok.dosyalar, kok.TamYol(u"a"), "c"));
    EXPECT_EQ(kok.Oku(u"a"), "c");
}

TEST(Koken, What_could_not_be_read_is_not_written_until_it_has_been_read) {
    KotuAgac kok;
    kok.Koy(u"a", "eski");
    Koken koken;
    kok.BirKezOkunmasin();
    EXPECT_FALSE(koken.Oku(kok.dosyalar, kok.TamYol(u"a")));
    EXPECT_FALSE(koken.Yazilir());
    EXPECT_FALSE(koken.Yaz(kok.dosyalar, kok.TamYol(u"a"), "yeni"));
    EXPECT_EQ(kok.Oku(u"a"), "eski");
    EXPECT_EQ(koken.Oku(kok.dosyalar, kok.TamYol(u"a")), "eski");
    EXPECT_TRUE(koken.Yaz(kok.dosyalar, kok.TamYol(u"a"), "yeni"));
    EXPECT_EQ(kok.Oku(u"a"), "yeni");
}

TEST(Koken, A_list_that_could_not_be_read_leaves_the_old_one) {
    KotuAgac kok;
    kok.Koy(u"a", "\"A\"\r\n\"B\"\r\n");
    Koken koken;
    kok.BirKezOkunmasin();
    EXPECT_TRUE(SatirlariOku(kok.dosyalar, kok.TamYol(u"a"), 1, &koken).empty());
    EXPECT_FALSE(SatirlariYaz(kok.dosyalar, kok.TamYol(u"a"), {{u"C"}}, koken));
    EXPECT_EQ(kok.Oku(u"a"), "\"A\"\r\n\"B\"\r\n");
    EXPECT_EQ(SatirlariOku(kok.dosyalar, kok.TamYol(u"a"), 1, &koken),
              (std::vector<SutunMetinleri>{{u"A"}, {u"B"}}));
    EXPECT_TRUE(SatirlariYaz(kok.dosyalar, kok.TamYol(u"a"), {{u"C"}}, koken));
    EXPECT_EQ(kok.Oku(u"a"), "\"C\"\r\n");
}

TEST(Koken, A_record_of_fields_tells_a_damaged_file_from_one_that_could_not_be_read) {
    KotuAgac kok;
    kok.Koy(u"a", "\"kisa\"\r\n");
    Metin bir;
    Metin iki;
    const std::vector<Alan> alanlar{MetinAlani(bir), MetinAlani(iki)};
    Koken koken;
    EXPECT_FALSE(AlanlariOku(kok.dosyalar, kok.TamYol(u"a"), alanlar, &koken));
    EXPECT_TRUE(koken.Yazilir());
    kok.BirKezOkunmasin();
    EXPECT_FALSE(AlanlariOku(kok.dosyalar, kok.TamYol(u"a"), alanlar, &koken));
    EXPECT_FALSE(koken.Yazilir());
}

TEST(Koken, Each_file_of_a_reservation_stays_when_it_could_not_be_read) {
    KotuAgac kok;
    kok.Koy(u"gun", "ana");
    kok.Koy(u"gun-Detay", "detay");
    kok.Koy(u"gun-Odeme", "\"01.02.2012\",\"7\",\"x\"\r\n");
    const std::string once = kok.Resim();
    AnaDegerler ana;
    DetayDegerler detay;
    std::vector<Odeme> odemeler;
    Koken anaKoken;
    Koken detayKoken;
    Koken odemeKoken;
    kok.BirKezOkunmasin();
    EXPECT_FALSE(AnaOku(kok.dosyalar, kok.TamYol(u"gun"), ana, &anaKoken));
    kok.BirKezOkunmasin();
    EXPECT_FALSE(DetayOku(kok.dosyalar, kok.TamYol(u"gun-Detay"), detay, &detayKoken));
    kok.BirKezOkunmasin();
    EXPECT_FALSE(OdemeOku(kok.dosyalar, kok.TamYol(u"gun-Odeme"), odemeler, &odemeKoken));
    EXPECT_FALSE(AnaYaz(kok.dosyalar, kok.TamYol(u"gun"), {}, anaKoken));
    EXPECT_FALSE(DetayYaz(kok.dosyalar, kok.TamYol(u"gun-Detay"), {}, detayKoken));
    EXPECT_FALSE(OdemeYaz(kok.dosyalar, kok.TamYol(u"gun-Odeme"), {{u"1", u"2", u"3"}}, odemeKoken));
    EXPECT_FALSE(OdemeYaz(kok.dosyalar, kok.TamYol(u"gun-Odeme"), {}, odemeKoken));
    EXPECT_EQ(kok.Resim(), once);
}

} // namespace velora::test
