#include <algorithm>
#include <array>
#include <set>

#include <gtest/gtest.h>

#include "storage/Sayi.h"
#include "tools/FirmaOku.h"

namespace velora::test {
namespace {

const std::vector<OkunanKayit>& Kayitlar() {
    return VarsayilanFirma::Al().kayitlar;
}
const GeciciAgac& Agac() {
    return VarsayilanFirma::Al().agac;
}

TEST(OrnekKayit, Gives_each_contract_its_own_number_and_the_counter_the_last_of_them) {
    std::set<Metin> numaralar;
    for (const OkunanKayit& kayit : Kayitlar())
        numaralar.insert(kayit.ana.No(14));
    EXPECT_EQ(numaralar.size(), 480U);
    EXPECT_TRUE(numaralar.contains(u"1"));
    EXPECT_TRUE(numaralar.contains(u"480"));
    EXPECT_EQ(Agac().Bayt(u"Count.dat"), "\"480\"\r\n");
}

TEST(OrnekKayit, Adds_up_what_was_paid_and_what_is_left) {
    int fazla = 0;
    for (const OkunanKayit& kayit : Kayitlar()) {
        double odenen = 0;
        for (const Odeme& odeme : kayit.odemeler) {
            EXPECT_GT(SayisalDeger(odeme.tutar), 0);
            odenen += SayisalDeger(odeme.tutar);
        }
        EXPECT_EQ(kayit.ana.No(9), DuzMetin(odenen));
        EXPECT_EQ(kayit.ana.No(10), DuzMetin(SayisalDeger(kayit.ana.No(8)) - odenen));
        EXPECT_LE(kayit.ana.No(8).size(), 6U);
        fazla += odenen > SayisalDeger(kayit.ana.No(8)) ? 1 : 0;
    }
    EXPECT_GT(fazla, 0);
    EXPECT_LT(fazla, 24);
}

TEST(OrnekKayit, Leaves_no_payments_file_where_nothing_was_paid) {
    std::array<int, 5> adet{};
    for (const OkunanKayit& kayit : Kayitlar()) {
        ASSERT_LE(kayit.odemeler.size(), 4U);
        EXPECT_EQ(kayit.odemeVar, !kayit.odemeler.empty());
        ++adet.at(kayit.odemeler.size());
    }
    for (const int kez : adet)
        EXPECT_GT(kez, 0);
}

TEST(OrnekKayit, Dates_payments_between_the_contract_and_today_and_names_number_and_customer) {
    const std::chrono::sys_days bugun = SabitIstek().bugun;
    for (const OkunanKayit& kayit : Kayitlar()) {
        const std::chrono::sys_days sozlesme = TarihCoz(kayit.ana.No(13)).value();
        for (const Odeme& odeme : kayit.odemeler) {
            const std::chrono::sys_days gun = TarihCoz(odeme.tarih).value();
            EXPECT_TRUE(sozlesme <= gun && gun <= bugun);
            EXPECT_EQ(odeme.aciklama, kayit.ana.No(14) + u" - " + kayit.ana.No(1));
        }
    }
}

TEST(OrnekKayit, Reminds_of_exactly_three_reservations_today_all_on_the_table_that_opens_first) {
    std::vector<Metin> salonlar;
    for (const OkunanKayit& kayit : Kayitlar()) {
        EXPECT_EQ(kayit.ana.No(20) == u"1", kayit.ana.No(18) != kBosTarih);
        if (kayit.ana.No(18) == u"17.06.2026" && kayit.yil == 2026)
            salonlar.push_back(kayit.salon);
    }
    EXPECT_EQ(salonlar, std::vector<Metin>(3, u"Gül Salonu"));
}

TEST(OrnekKayit, Has_firm_and_preliminary_ones_and_no_preliminary_one_in_the_past) {
    int kesin = 0;
    int on = 0;
    for (const OkunanKayit& kayit : Kayitlar()) {
        const bool onMu = kayit.detay.No(37) == u"1";
        EXPECT_EQ(kayit.detay.No(36), onMu ? u"0" : u"1");
        ++(onMu ? on : kesin);
        const std::chrono::sys_days gun = TarihCoz(AnahtarTarihi(kayit.ad)).value();
        EXPECT_FALSE(onMu && gun < std::chrono::sys_days(SabitIstek().bugun));
    }
    EXPECT_GT(on, 40);
    EXPECT_GT(kesin, 240);
}

TEST(OrnekKayit, Fills_each_field_in_its_form) {
    const std::set<Metin> nitelikler = {u"Düğün",   u"Nişan",     u"Sünnet", u"Toplantı",
                                        u"Kokteyl", u"Konferans", u"Diğer"};
    std::set<Metin> gorulen;
    for (const OkunanKayit& kayit : Kayitlar()) {
        EXPECT_FALSE(kayit.ana.No(1).empty());
        gorulen.insert(kayit.ana.No(4));
        for (const int saat : {12, 15}) {
            EXPECT_EQ(kayit.ana.No(saat).size(), 5U);
            EXPECT_EQ(kayit.ana.No(saat)[2], u':');
        }
        EXPECT_TRUE(kayit.ana.No(16).empty() || kayit.ana.No(16).size() == 11);
        for (int no = 1; no <= 18; ++no)
            EXPECT_EQ(kayit.ana.No(no).find_first_of(u"\","), Metin::npos) << no;
        for (int no = 18; no <= 34; ++no)
            EXPECT_TRUE(kayit.detay.No(no).empty() || kayit.detay.No(no - 17) == u"1") << no;
    }
    EXPECT_EQ(gorulen, nitelikler);
}

TEST(OrnekKayit, Holds_a_copy_of_the_chosen_menu) {
    const std::vector<Metin> menuler = TumDegerler(Agac(), u"Menuler.dat");
    for (const OkunanKayit& kayit : Kayitlar()) {
        const auto yer = std::ranges::find(menuler, kayit.detay.No(38));
        if (yer == menuler.end()) {
            EXPECT_EQ(kayit.detay.No(38), u"Menü seçiniz...");
            EXPECT_EQ(kayit.detay.No(39), u"");
        } else {
            EXPECT_EQ(kayit.detay.No(39), *std::next(yer));
        }
    }
}

TEST(OrnekKayit, Mostly_takes_part_in_the_warnings) {
    int katilan = 0;
    for (const OkunanKayit& kayit : Kayitlar())
        katilan += kayit.ana.No(19) == u"1" ? 1 : 0;
    EXPECT_GT(katilan, 384);
    EXPECT_LT(katilan, 480);
}

TEST(OrnekKayit, Enters_expenses_by_date_as_bare_literals_and_none_after_today_but_the_insurance) {
    const std::vector<Metin> giderler = TumDegerler(Agac(), u"Çınar Kır Bahçesi/2026/Gider.dat");
    ASSERT_EQ(giderler.size() % 3, 0U);
    EXPECT_GT(giderler.size(), 3 * 20U);
    for (std::size_t i = 0; i < giderler.size(); i += 3) {
        EXPECT_TRUE(giderler[i].starts_with(u"#2026-"));
        EXPECT_LE(giderler[i], u"#2026-06-17#");
        EXPECT_TRUE(i == 0 || giderler[i - 3] <= giderler[i]);
        EXPECT_GT(SayisalDeger(giderler[i + 1]), 0);
        EXPECT_FALSE(giderler[i + 2].empty());
    }
    EXPECT_EQ(Agac().Bayt(u"Çınar Kır Bahçesi/2027/Gider.dat"),
              "#2027-01-02#,\"24000\",\"Y\xFDll\xFDk Sigorta\"\r\n");
}

} // namespace
} // namespace velora::test
