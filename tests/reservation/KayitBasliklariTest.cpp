// What stands beside the fields of the reservation's screens, without a window.
#include "reservation/AramaTest.h"

namespace velora::test {

class KayitBasliklariTest : public AramaTest {
  protected:
    /// Captions, each with the one that it must be.
    using Basliklar = std::vector<std::pair<Metin, MetinBakis>>;

    static void Ayni(const Basliklar& basliklar) {
        for (const auto& [baslik, beklenen] : basliklar)
            EXPECT_EQ(baslik, beklenen);
    }
};

TEST_F(KayitBasliklariTest, Fields_of_the_first_page) {
    const std::array<MetinBakis, kKaySayisi> alanlar{u"Adı Soyadı",
                                                     u"Yöresi",
                                                     u"Gelin / Damat",
                                                     u"Niteliği",
                                                     u"Telefon",
                                                     u"Cep",
                                                     u"Adres",
                                                     u"Toplam Ücret",
                                                     u"",
                                                     u"",
                                                     u"Ön Açıklama",
                                                     u"Başlama Saati",
                                                     u"Sözleşme Tarihi",
                                                     u"Sözleşme No",
                                                     u"Bitiş Saati",
                                                     u"T.C. Kimlik No",
                                                     u"Davetli Sayısı",
                                                     u"Bu Tarihte Hatırlat"};
    for (int no = 1; no <= kKaySayisi; ++no) {
        EXPECT_EQ(Kayit().Kay[no].baslik, alanlar[static_cast<std::size_t>(no - 1)]) << no;
        EXPECT_EQ(Kayit().Kay[no].sonra, no == 8 ? u"TL" : no == 13 ? u"(gün.ay.yıl)" : u"") << no;
    }
    Ayni({{Kayit().tarihBaslik, u"Rezervasyon Tarihi"},
          {Kayit().SalonAdi.once, u"Salon"},
          {Kayit().Option1.baslik, u"Kesin Rezervasyon"},
          {Kayit().Option2.baslik, u"Ön Rezervasyon"},
          {Kayit().Check18.baslik, u"Yaklaşınca Hatırlat"},
          {Kayit().Check19.baslik, u"Bu Tarihte Hatırlat"}});
}

TEST_F(KayitBasliklariTest, The_buttons_of_the_contract) {
    Ayni({{Kayit().Command3.baslik, u"Sözleşme Yazdır"},
          {Kayit().Pdf.baslik, u"PDF"},
          {Kayit().Pdf.ipucu, u"PDF dosyası olarak kaydet"}});
}

TEST_F(KayitBasliklariTest, Pages_and_what_stands_on_the_other_ones) {
    EXPECT_EQ(Kayit().sayfalar,
              (std::array<Metin, 4>{u"Genel Bilgiler ", u"Ödemeler", u"Menüler", u"Hizmetler"}));
    EXPECT_EQ(Kayit().Liste.basliklar, (Adlar{u"Tarih", u"Tutar", u"Açıklama"}));
    Ayni({{Kayit().Liste.baslik, u"Ödemeler"},
          {Kayit().Kayam9.once, u"Alınan Ödeme :"},
          {Kayit().Kayam9.sonra, u"TL"},
          {Kayit().Kayam10.once, u"Kalan Ödeme :"},
          {Kayit().Kayam10.sonra, u"TL"},
          {Kayit().Combo1.baslik, u"Menü"},
          {Kayit().Label20.baslik, u"Menü içeriği"},
          {Kayit().Aciklamalar.baslik, u"Özel İstekler ve Açıklamalar"}});
}

TEST_F(KayitBasliklariTest, Services_and_their_notes) {
    const std::array<Metin, kHizmetSayisi> hizmetler{u"Yaş Pasta Servisi",
                                                     u"Havai Fişek Gösterisi",
                                                     u"Yerli İçki Servisi",
                                                     u"Yabancı İçki Servisi",
                                                     u"Yemek Servisi",
                                                     u"Kuru Pasta Servisi",
                                                     u"Volkan Konfeti Gösterisi",
                                                     u"Barkovizyon",
                                                     u"Özel Araç Tahsisi",
                                                     u"Araç Süsleme",
                                                     u"Gelin Kuaförü",
                                                     u"Damat Kuaförü",
                                                     u"Orkestra",
                                                     u"Sanatçı",
                                                     u"Video Çekimleri",
                                                     u"Fotoğraf Çekimleri",
                                                     u"Dj / Ara Disko"};
    for (int no = 1; no <= kHizmetSayisi; ++no) {
        const Metin& hizmet = hizmetler[static_cast<std::size_t>(no - 1)];
        EXPECT_EQ(Kayit().Check[no].baslik, hizmet);
        EXPECT_EQ(Kayit().TT[no].baslik, hizmet + u", not");
    }
}

TEST_F(KayitBasliklariTest, Payment_and_search) {
    const auto odeme = Prog().FormOdemeAl.Tut();
    Ayni({{odeme->baslik, u"Ödeme Ekle"},
          {odeme->DTPicker1.baslik, u"Tarih Seçin"},
          {odeme->Text1.baslik, u"Miktar Girin"},
          {odeme->Aciklama.baslik, u"Açıklama"},
          {odeme->Command1.baslik, u"Tamam"},
          {odeme->Command2.baslik, u"İptal"},
          {Arama().Text[1].baslik, u"Adı Soyadı"},
          {Arama().Text[2].baslik, u"Gelin / Damat"},
          {Arama().Text[3].baslik, u"Telefon"},
          {Arama().Text[4].baslik, u"Cep"},
          {Arama().Text[5].baslik, u"Sözleşme No"},
          {Arama().Liste.baslik, u"Bulunan kayıtlar"}});
}

} // namespace velora::test
