// A reservation is moved by dragging its cell.
#include "table/TabloTest.h"

namespace velora::test {

class TasimaModu : public TabloTest {
  protected:
    static constexpr MetinBakis kRet =
        u"Bu tarihe taşıma yapamazsınız!\nBu tarihte zaten bir rezervasyon kayıtlı!";
    static constexpr MetinBakis kSoru = u"Seçili rezervasyonu taşımak istediğinizden emin misiniz?";

    /// The three files of a reservation, with bytes that name them.
    void UcDosyaKoy(const Metin& ad, const std::string& iz) {
        agac.Koy(u"Salon A/2012/" + ad, "\"" + iz + "\",\"Bolu\"\r\n");
        agac.Koy(u"Salon A/2012/" + ad + u"-Detay", iz + " detay");
        agac.Koy(u"Salon A/2012/" + ad + u"-Odeme", iz + " odeme");
    }
    void UcDosyaOlmali(const Metin& ad, const std::string& iz) {
        EXPECT_EQ(agac.Bayt(u"Salon A/2012/" + ad), "\"" + iz + "\",\"Bolu\"\r\n");
        EXPECT_EQ(agac.Bayt(u"Salon A/2012/" + ad + u"-Detay"), iz + " detay");
        EXPECT_EQ(agac.Bayt(u"Salon A/2012/" + ad + u"-Odeme"), iz + " odeme");
    }
    void DosyaYok(const Metin& ad) {
        for (const MetinBakis ek : {u"", u"-Detay", u"-Odeme"})
            EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/" + ad + Metin(ek)));
    }
    void RetBekle() { kullanici.ortam.Bekle(BeklenenKutu{.baslik = u"Uyarı", .metin = Metin(kRet)}); }
    void SoruBekle(Cevap cevap) {
        kullanici.ortam.Bekle(
            BeklenenKutu{.baslik = u"Velora", .metin = Metin(kSoru), .simge = Simge::Soru, .cevap = cevap});
    }
    int Suruklenebilen() {
        int sayi = 0;
        for (const TabloSatiri& satir : kullanici.Tablo().satirlar)
            for (const Hucre& hucre : satir.gun)
                sayi += hucre.otomatikSurukleme ? 1 : 0;
        return sayi;
    }
    void ModKapaliOlmali() {
        EXPECT_EQ(kullanici.Tablo().tasimamoducheck, 0);
        EXPECT_EQ(Suruklenebilen(), 0);
    }
};

TEST_F(TasimaModu, Makes_taken_cells_of_both_kinds_and_slots_draggable_and_no_free_one) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    RezervasyonKoy(u"21.06.2012 - Gündüz", {}, true);
    RezervasyonKoy(u"22.06.2012 - Gece");
    RezervasyonKoy(u"23.06.2012 - Gece", {}, true);
    kullanici.ProgramiAc();
    EXPECT_EQ(Suruklenebilen(), 0);
    kullanici.KomutSec(Komut::TasimaModuAc);
    EXPECT_EQ(kullanici.Tablo().tasimamoducheck, 1);
    EXPECT_EQ(Suruklenebilen(), 4);
    EXPECT_TRUE(kullanici.Goz(21, 6, kGunduz).otomatikSurukleme);
    EXPECT_TRUE(kullanici.Goz(22, 6, kGece).otomatikSurukleme);
    EXPECT_FALSE(kullanici.Surukle({24, 6, kGece}, {25, 6, kGece})) << "a free cell starts no drag";
    EXPECT_EQ(kullanici.Tablo().Girdi(Komut::TasimaModuAc).baslik, u"Taşıma Modunu Aç");
}

TEST_F(TasimaModu,
       A_taken_colour_of_the_other_slots_rows_makes_nothing_draggable_and_bars_no_drop_on_purpose) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    const auto ayarlar = kullanici.Prog().FormAyarlar.Tut();
    const std::string once = agac.Resim();
    int gun = 2;
    for (const auto& [dilim, renk] :
         {std::pair{kGunduz, 12}, std::pair{kGunduz, 21}, std::pair{kGece, 6}, std::pair{kGece, 19}}) {
        const TabloGozu hedef{++gun, 9, dilim};
        kullanici.Goz(hedef.gun, hedef.ay, dilim).zemin = ayarlar->Renk(renk);
        kullanici.KomutSec(Komut::TasimaModuAc);
        EXPECT_EQ(Suruklenebilen(), 1) << renk;
        SoruBekle(Cevap::Hayir);
        EXPECT_TRUE(kullanici.Surukle({20, 6, kGunduz}, hedef));
    }
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(TasimaModu, Past_reservation_is_not_draggable) {
    AyarKoy(28, u"1");
    RezervasyonKoy(u"10.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    EXPECT_EQ(Suruklenebilen(), 0);
}

TEST_F(TasimaModu, Opening_hides_the_hover_label_and_it_stays_hidden_while_the_mode_is_open) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.Uzerine({20, 6, kGunduz});
    EXPECT_TRUE(kullanici.Tablo().Ekran.gorunur);
    kullanici.KomutSec(Komut::TasimaModuAc);
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
    kullanici.Uzerine({21, 6, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"21.06.2012 - Gündüz");
}

TEST_F(TasimaModu, No_menu_opens_on_a_draggable_cell) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    EXPECT_FALSE(kullanici.SagTikla({20, 6, kGunduz}));
    EXPECT_TRUE(kullanici.SagTikla({21, 6, kGunduz}));
}

TEST_F(TasimaModu, Drop_on_itself_is_refused_and_closes_the_mode) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    RetBekle();
    EXPECT_TRUE(kullanici.Surukle({20, 6, kGunduz}, {20, 6, kGunduz}));
    UcDosyaOlmali(u"20.06.2012 - Gündüz", "A");
    ModKapaliOlmali();
}

TEST_F(TasimaModu, Drop_on_a_taken_cell_is_refused_and_both_reservations_stay) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    UcDosyaKoy(u"21.06.2012 - Gece", "B");
    kullanici.ProgramiAc();
    const std::string once = agac.Resim();
    kullanici.KomutSec(Komut::TasimaModuAc);
    RetBekle();
    kullanici.Surukle({20, 6, kGunduz}, {21, 6, kGece});
    EXPECT_EQ(agac.Resim(), once);
    ModKapaliOlmali();
    EXPECT_FALSE(kullanici.Surukle({20, 6, kGunduz}, {22, 6, kGece})) << "one drop for each mode";
}

TEST_F(TasimaModu, No_to_the_question_leaves_all_files_and_closes_the_mode) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    const std::string once = agac.Resim();
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Hayir);
    kullanici.Surukle({20, 6, kGunduz}, {21, 6, kGunduz});
    EXPECT_EQ(agac.Resim(), once);
    ModKapaliOlmali();
}

TEST_F(TasimaModu, Drop_on_the_evening_row_of_the_same_day_makes_it_an_evening_reservation) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({20, 6, kGunduz}, {20, 6, kGece});
    UcDosyaOlmali(u"20.06.2012 - Gece", "A");
    DosyaYok(u"20.06.2012 - Gündüz");
    RenkOlmali(20, 6, kGunduz, 2, 3);
    RenkOlmali(20, 6, kGece, 12, 13);
    ModKapaliOlmali();
}

TEST_F(TasimaModu, Todays_frame_is_tested_again_after_a_move) {
    UcDosyaKoy(u"15.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    kullanici.Tablo().Command6();
    EXPECT_EQ(kullanici.Tablo().GunTimer.aralik, 300);
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({15, 6, kGunduz}, {3, 9, kGunduz});
    EXPECT_EQ(kullanici.Tablo().GunTimer.aralik, 0);
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({3, 9, kGunduz}, {15, 6, kGece});
    EXPECT_EQ(kullanici.Tablo().GunTimer.aralik, 300);
}

TEST_F(TasimaModu, After_a_move_the_scan_comes_first_and_then_the_look_at_today) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Evet);
    EXPECT_EQ(DiskteSirasi([&] { kullanici.Surukle({20, 6, kGunduz}, {1, 7, kGece}); }), "dddlbb");
}

TEST_F(TasimaModu, Reservation_without_payments_moves_without_them_in_silence) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    std::filesystem::remove(agac.Yol(u"Salon A/2012/20.06.2012 - Gündüz-Odeme"));
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({20, 6, kGunduz}, {1, 7, kGunduz});
    EXPECT_TRUE(agac.DosyaVar(u"Salon A/2012/01.07.2012 - Gündüz-Detay"));
    EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/01.07.2012 - Gündüz-Odeme"));
    DosyaYok(u"20.06.2012 - Gündüz");
}

TEST_F(TasimaModu, Old_payments_at_the_target_stay_and_belong_to_the_moved_reservation_on_purpose) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    std::filesystem::remove(agac.Yol(u"Salon A/2012/20.06.2012 - Gündüz-Odeme"));
    agac.Koy(u"Salon A/2012/01.07.2012 - Gündüz-Odeme", "eski odeme");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({20, 6, kGunduz}, {1, 7, kGunduz});
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/01.07.2012 - Gündüz-Odeme"), "eski odeme");
}

TEST_F(TasimaModu, Drop_on_a_past_reservation_overwrites_it_without_a_refusal_on_purpose) {
    AyarKoy(28, u"1");
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    UcDosyaKoy(u"10.06.2012 - Gündüz", "B");
    kullanici.ProgramiAc();
    RenkOlmali(10, 6, kGunduz, 17, 18);
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({20, 6, kGunduz}, {10, 6, kGunduz});
    UcDosyaOlmali(u"10.06.2012 - Gündüz", "A");
    DosyaYok(u"20.06.2012 - Gündüz");
}

TEST_F(TasimaModu, Cell_painted_past_since_the_mode_opened_and_dropped_on_itself_keeps_its_reservation) {
    UcDosyaKoy(u"10.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    kullanici.Prog().FormAyarlar->Check1.Ata(1);
    kullanici.Tablo().Command1();
    SoruBekle(Cevap::Evet);
    EXPECT_TRUE(kullanici.Surukle({10, 6, kGunduz}, {10, 6, kGunduz}));
    UcDosyaOlmali(u"10.06.2012 - Gündüz", "A");
    ModKapaliOlmali();
}

TEST_F(TasimaModu, Dropped_colour_leaves_taken_cells_open_to_a_drop_until_the_next_scan_on_purpose) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    UcDosyaKoy(u"21.06.2012 - Gece", "B");
    kullanici.ProgramiAc();
    kullanici.Prog().FormAyarlar->renkler[12] = 0x123456;
    kullanici.Tablo().Command1();
    kullanici.Prog().FormAyarlar.Bosalt();
    kullanici.KomutSec(Komut::TasimaModuAc);
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({20, 6, kGunduz}, {21, 6, kGece});
    UcDosyaOlmali(u"21.06.2012 - Gece", "A");
}

TEST_F(TasimaModu,
       Drag_flags_stay_by_position_over_a_change_of_hall_or_year_and_a_drop_then_changes_nothing) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    const std::vector<std::function<void()>> degisiklikler{[this] { kullanici.SalonSec(u"Salon B"); },
                                                           [this] { kullanici.YilSec(u"2013"); }};
    for (const auto& degistir : degisiklikler) {
        kullanici.SalonSec(u"Salon A");
        kullanici.KomutSec(Komut::TasimaModuAc);
        degistir();
        EXPECT_EQ(kullanici.Tablo().tasimamoducheck, 1);
        const std::string once = agac.Resim();
        SoruBekle(Cevap::Evet);
        EXPECT_TRUE(kullanici.Surukle({20, 6, kGunduz}, {21, 6, kGunduz}));
        EXPECT_EQ(agac.Resim(), once);
        ModKapaliOlmali();
    }
}

TEST_F(TasimaModu, Scan_leaves_the_drag_flags_alone) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    kullanici.Tablo().Command1();
    EXPECT_EQ(Suruklenebilen(), 1);
}

TEST_F(TasimaModu, A_file_whose_copy_failed_stays_where_it_is_and_the_next_start_brings_it_along) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Kopyala && yol.ends_with(u"-Detay");
    };
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({20, 6, kGunduz}, {1, 7, kGunduz});
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/01.07.2012 - Gündüz"), "\"A\",\"Bolu\"\r\n");
    EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/01.07.2012 - Gündüz-Detay"));
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/01.07.2012 - Gündüz-Odeme"), "A odeme");
    const std::string detay = agac.Bayt(u"Salon A/2012/20.06.2012 - Gündüz-Detay");
    EXPECT_EQ(detay, "A detay");
    EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/20.06.2012 - Gündüz"));
    EXPECT_FALSE(agac.DosyaVar(u"Salon A/2012/20.06.2012 - Gündüz-Odeme"));
    kullanici.ProgramiAc();
    EXPECT_EQ(agac.Bayt(u"Salon A/2012/01.07.2012 - Gündüz-Detay"), detay);
    DosyaYok(u"20.06.2012 - Gündüz");
}

TEST_F(TasimaModu, Copies_come_before_deletes_and_each_goes_main_file_details_payments) {
    UcDosyaKoy(u"20.06.2012 - Gündüz", "A");
    kullanici.ProgramiAc();
    kullanici.KomutSec(Komut::TasimaModuAc);
    std::vector<std::pair<DosyaIsi, Metin>> isler;
    kullanici.Prog().dosyalar.ariza = [&](DosyaIsi is, const Metin& yol) {
        if (is == DosyaIsi::Kopyala || is == DosyaIsi::Sil)
            isler.emplace_back(is, yol.substr(yol.rfind(u'\\') + 1));
        return false;
    };
    SoruBekle(Cevap::Evet);
    kullanici.Surukle({20, 6, kGunduz}, {1, 7, kGece});
    const std::vector<std::pair<DosyaIsi, Metin>> beklenen{
        {DosyaIsi::Kopyala, u"01.07.2012 - Gece"},       {DosyaIsi::Kopyala, u"01.07.2012 - Gece-Detay"},
        {DosyaIsi::Kopyala, u"01.07.2012 - Gece-Odeme"}, {DosyaIsi::Sil, u"20.06.2012 - Gündüz"},
        {DosyaIsi::Sil, u"20.06.2012 - Gündüz-Detay"},   {DosyaIsi::Sil, u"20.06.2012 - Gündüz-Odeme"}};
    EXPECT_EQ(isler, beklenen);
}

} // namespace velora::test
