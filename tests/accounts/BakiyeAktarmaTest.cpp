// The report's list as a file for a spreadsheet program, and the way to that program.
#include <algorithm>

#include "accounts/BakiyeTest.h"
#include "xls/Okurlar.h"

namespace velora::test {

class BakiyeAktarma : public BakiyeTest {
  protected:
    static constexpr MetinBakis kRapor = u"Rapor.xls";

    void AktaraBas() { VELORA_BAS(Prog().FormBakiye, Command2); }
    /// The only sheet of the file.
    XlsSatirlari Okunan() {
        const auto sayfalar = FreeXlOku(agac.Yol(kRapor));
        EXPECT_EQ(sayfalar.size(), 1U);
        return sayfalar.empty() ? XlsSatirlari() : sayfalar[0].satirlar;
    }
    std::size_t SatirSayisi() { return Okunan().size() - 1; }
    /// The program is told to open the file so many times, and nothing else.
    void AcilmisOlmali(std::size_t kez) {
        EXPECT_EQ(kullanici.ortam.acilanDosyalar, std::vector(kez, agac.Kok() / "Rapor.xls"));
    }
    /// These steps on the file fail from now on; on others none does.
    void Bozuk(std::vector<DosyaIsi> isler) {
        Prog().dosyalar.ariza = [isler = std::move(isler)](DosyaIsi is, const Metin& yol) {
            return yol.ends_with(kRapor) && std::ranges::find(isler, is) != isler.end();
        };
    }
};

TEST_F(BakiyeAktarma, The_rows_stand_as_they_are_listed_under_headings_of_their_own) {
    KayitKoy(
        agac, u"Salon A/2012/20.06.2012 - Gündüz",
        {.ad = u"Ayşe Iğdır", .nitelik = u"Nişan", .ucret = u"1250.50", .alinan = u"1.250", .kalan = u"-20"},
        true);
    KayitKoy(agac, u"Salon A/2012/03.07.2012 - Gece",
             {.ad = u"=1+1", .ucret = u"9000", .alinan = u"", .kalan = u"=9"});
    YiliListele([&] {
        AktaraBas();
        const XlsSatirlari beklenen{
            MetinSatiri({"Tarih", "Ad Soyad", "Toplam", "Alınan", "Bakiye", "Tipi", "Salon", "Niteliği",
                         "Davetli", "Ön Açıklama"}),
            {"03.07.2012 - Gece", "=1+1", 9000.0, {}, "=9", "Kesin", "Salon A", "Düğün", 250.0, "not"},
            {"20.06.2012 - Gündüz", "Ayşe Iğdır", 1250.5, "1.250", -20.0, "Ön", "Salon A", "Nişan", 250.0,
             "not"}};
        EXPECT_EQ(Okunan(), beklenen);
        EXPECT_EQ(Rapor().Liste.basliklar[4], u"Kalan") << "the screen keeps its own word";
        AcilmisOlmali(1);
    });
}

TEST_F(BakiyeAktarma, Only_what_is_listed_goes_out_whatever_was_chosen_since) {
    DurumluKoy(u"20.06.2012 - Gece", u"1", u"0");
    DurumluKoy(u"21.06.2012 - Gece", u"0", u"1");
    DurumluKoy(u"22.06.2012 - Gece", u"0", u"1");
    YiliListele([&] {
        TipSec(1);
        Rapor().ListeleGun();
        TipSec(2);
        Aralik(u"01.01.2012", u"02.01.2012");
        AktaraBas();
        EXPECT_EQ(SatirSayisi(), 2U);
        EXPECT_EQ(Okunan().at(1).at(0), XlsHucresi("21.06.2012 - Gece"));
    });
}

TEST_F(BakiyeAktarma, Before_a_listing_there_are_only_headings) {
    RezervasyonKoy(Metin(kGun));
    RaporAc([&] {
        AktaraBas();
        EXPECT_EQ(SatirSayisi(), 0U);
        EXPECT_EQ(Okunan().at(0).size(), 10U);
        AcilmisOlmali(1);
    });
}

TEST_F(BakiyeAktarma, Afterwards_a_row_has_to_be_clicked_again_to_open_its_record) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        SatirSec(0);
        EXPECT_TRUE(Rapor().Command6.etkin);
        AktaraBas();
        EXPECT_FALSE(Rapor().Command6.etkin);
        EXPECT_EQ(Rapor().Liste.secili, 0);
    });
}

TEST_F(BakiyeAktarma, Two_exports_in_a_row_replace_the_file) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    RezervasyonKoy(u"21.06.2012 - Gece");
    YiliListele([&] {
        AktaraBas();
        EXPECT_EQ(SatirSayisi(), 2U);
        Aralik(u"21.06.2012", u"21.06.2012");
        Rapor().ListeleGun();
        AktaraBas();
        EXPECT_EQ(SatirSayisi(), 1U);
        AcilmisOlmali(2);
    });
}

TEST_F(BakiyeAktarma, The_old_file_is_deleted_before_the_new_one_is_written) {
    agac.Koy(kRapor, "old");
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        std::vector<DosyaIsi> isler;
        Prog().dosyalar.ariza = [&](DosyaIsi is, const Metin& yol) {
            if (yol.ends_with(kRapor))
                isler.push_back(is);
            return false;
        };
        AktaraBas();
        Prog().dosyalar.ariza = nullptr;
        EXPECT_EQ(isler, (std::vector{DosyaIsi::Sil, DosyaIsi::Yaz}));
    });
}

TEST_F(BakiyeAktarma, A_breath_is_drawn_while_the_file_is_made) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        int nefes = 0;
        std::vector<int> once; // before the old file is deleted, before the new one is written
        Prog().ortam.olaylar.nefes = [&] { ++nefes; };
        Prog().dosyalar.ariza = [&](DosyaIsi, const Metin& yol) {
            if (yol.ends_with(kRapor))
                once.push_back(nefes);
            return false;
        };
        AktaraBas();
        Prog().dosyalar.ariza = nullptr;
        Prog().ortam.olaylar.nefes = [] {};
        ASSERT_EQ(once.size(), 2U);
        EXPECT_GT(once[1], once[0]);
    });
}

TEST_F(BakiyeAktarma, The_old_file_is_gone_even_when_the_writing_then_fails_on_purpose) {
    agac.Koy(kRapor, "old");
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        SatirSec(0);
        Prog().dosyalar.bosYer = 100;
        AktaraBas();
        EXPECT_FALSE(agac.Var(kRapor)) << "neither the old one nor a part of the new";
        AcilmisOlmali(1);
        EXPECT_FALSE(Rapor().Command6.etkin);
    });
}

TEST_F(BakiyeAktarma, A_file_held_by_another_program_stays_is_opened_and_nothing_is_said_on_purpose) {
    agac.Koy(kRapor, "held");
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        SatirSec(0);
        Bozuk({DosyaIsi::Sil, DosyaIsi::Yaz});
        AktaraBas();
        EXPECT_EQ(agac.Bayt(kRapor), "held");
        AcilmisOlmali(1);
        EXPECT_FALSE(Rapor().Command6.etkin);
        Bozuk({});
        AktaraBas();
        EXPECT_EQ(SatirSayisi(), 1U) << "let go, it is replaced";
    });
}

TEST_F(BakiyeAktarma, In_a_folder_that_lets_nothing_go_the_file_is_written_over) {
    agac.Koy(kRapor, std::string(100'000, 'x'));
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        Bozuk({DosyaIsi::Sil});
        AktaraBas();
        EXPECT_EQ(SatirSayisi(), 1U);
        EXPECT_LT(agac.Bayt(kRapor).size(), 100'000U);
    });
}

TEST_F(BakiyeAktarma, A_folder_of_that_name_stays_and_nothing_is_said) {
    agac.Koy(u"Rapor.xls/not.txt", "x");
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        AktaraBas();
        EXPECT_EQ(agac.Bayt(u"Rapor.xls/not.txt"), "x");
    });
}

TEST_F(BakiyeAktarma, A_file_from_another_system_under_capital_letters_is_replaced_too) {
    agac.Koy(u"RAPOR.XLS", "old");
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        AktaraBas();
        EXPECT_FALSE(agac.Var(u"RAPOR.XLS"));
        EXPECT_EQ(SatirSayisi(), 1U);
        AcilmisOlmali(1);
    });
}

TEST_F(BakiyeAktarma, Without_a_program_for_such_files_the_file_stands_and_nothing_is_said) {
    RezervasyonKoy(Metin(kGun));
    kullanici.ortam.dosyaAcilir = false;
    YiliListele([&] {
        SatirSec(0);
        AktaraBas();
        EXPECT_EQ(SatirSayisi(), 1U);
        EXPECT_FALSE(Rapor().Command6.etkin);
    });
}

TEST_F(BakiyeAktarma, An_export_that_begins_while_the_file_is_being_opened_is_the_one_that_stays) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    RezervasyonKoy(u"21.06.2012 - Gece");
    YiliListele([&] {
        kullanici.ortam.dosyaAcilirken = [&] {
            kullanici.ortam.dosyaAcilirken = nullptr;
            EXPECT_EQ(SatirSayisi(), 2U) << "written before it is opened";
            Aralik(u"21.06.2012", u"21.06.2012");
            Rapor().ListeleGun();
            AktaraBas();
        };
        AktaraBas();
        EXPECT_EQ(SatirSayisi(), 1U);
        AcilmisOlmali(2);
    });
}

TEST_F(BakiyeAktarma, The_report_can_be_closed_while_the_file_is_being_opened) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        kullanici.ortam.dosyaAcilirken = [&] { VELORA_BAS(Prog().FormBakiye, Command1); };
        AktaraBas();
        EXPECT_FALSE(Prog().FormBakiye.Yuklu());
        EXPECT_EQ(SatirSayisi(), 1U);
    });
}

TEST_F(BakiyeAktarma, Nothing_else_in_the_folder_changes) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        const std::string once = agac.Resim();
        AktaraBas();
        std::filesystem::remove(agac.Yol(kRapor));
        EXPECT_EQ(agac.Resim(), once);
    });
}

} // namespace velora::test
