#include "documents/FormPrint.h"

#include "access/Splash.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "destek/Sayfalar.h"
#include "documents/SayfaAkisi.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

// Of the page with the remark, all of it: field, place, size, side, lines.
constexpr MetinBakis kAciklamaliSayfa = uR"(--
Unvan 60,15 90x14 18K =|Gül Düğün Salonları|
Tarihi 153,15 42x4.2 10 >|Tarih : 03.02.2012|
SozNo 153,19.2 42x4.2 10 >|Sözleşme No : 418|
Baslik 15,29 180x5.5 13K =|Şartlar|
Sozlesme 15,36.5 180x10.2 12 <|1 - Kira peşin.|2 - İçki yok.|
 15,54.7 36x4.7 11 <|Salon İsmi|
 51,54.7 3x4.7 11 <|:|
CSalon 54,54.7 49x4.7 11 <|Nergis Salonu|
 15,59.3 36x4.7 11 <|Rezervasyon Türü|
 51,59.3 3x4.7 11 <|:|
CTuru 54,59.3 49x4.7 11 <|Nişan|
 15,64 36x4.7 11 <|Rezervasyon Tarihi|
 51,64 3x4.7 11 <|:|
CTarihi 54,64 49x4.7 11 <|05.05.2012|
 15,68.6 36x4.7 11 <|Rezervasyon Saati |
 51,68.6 3x4.7 11 <|:|
CSaati 54,68.6 49x4.7 11 <|11:00 - 15:30|
 15,73.3 36x4.7 11 <|Davetli Sayısı|
 51,73.3 3x4.7 11 <|:|
Cdavetli 54,73.3 49x4.7 11 <|350 Kişi|
 15,77.9 36x4.7 11 <|Toplam Ücret|
 51,77.9 3x4.7 11 <|:|
CTutar 54,77.9 49x4.7 11 <|12500 TL|
 15,82.6 36x4.7 11 <|Ödenen Peşinat  |
 51,82.6 3x4.7 11 <|:|
COdenen 54,82.6 49x4.7 11 <|2500 TL|
 15,87.3 36x4.7 11 <|Kalan Ücret|
 51,87.3 3x4.7 11 <|:|
CKalan 54,87.3 49x4.7 11 <|10000 TL|
 107,54.7 30x4.7 11 <|T.C.Kimlik No|
 137,54.7 3x4.7 11 <|:|
Ctcno 140,54.7 55x4.7 11 <|12345678901|
 107,59.3 30x4.7 11 <|Adı - Soyadı |
 137,59.3 3x4.7 11 <|:|
CAdi 140,59.3 55x4.7 11 <|Ayşe Yılmaz|
 107,64 30x4.7 11 <|Gelin ve Damat |
 137,64 3x4.7 11 <|:|
CGelin 140,64 55x4.7 11 <|Elif - Can|
 107,68.6 30x4.7 11 <|Yöresi|
 137,68.6 3x4.7 11 <|:|
CYore 140,68.6 55x4.7 11 <|Tokat|
 107,73.3 30x4.7 11 <|Telefon|
 137,73.3 3x4.7 11 <|:|
CTel 140,73.3 55x4.7 11 <|0212 1|
 107,77.9 30x4.7 11 <|Cep|
 137,77.9 3x4.7 11 <|:|
CCep 140,77.9 55x4.7 11 <|0532 2|
 107,82.6 30x4.7 11 <|Adres|
 137,82.6 3x4.7 11 <|:|
CAdres 140,82.6 55x14 11 <|Çay Sk. 3|
 15,104.6 88x4.2 10K =|Kiraya Veren İmza|
 15,118.6 88x4.2 10K =|----------------------------|
 107,104.6 88x4.2 10K =|Kiralayan İmza|
 107,118.6 88x4.2 10K =|----------------------------|
Label55 15,130.8 180x5.1 12K <|Ön Açıklama :|
Onaciklama 15,135.9 180x5.1 12 <|Masa düzeni U olacak.|
)";

// Of the page with the note, from the last rule to sign on.
constexpr MetinBakis kSenetinYeri = uR"( 107,118.6 88x4.2 10K =|----------------------------|
 19,193.4 60.2x4.2 10 =|    Ödeme Tarihi    |
 79.2,193.4 60.2x4.2 10 =|    Türk Lirası    |
 139.4,193.4 25.8x4.2 10 =|  Kuruş  |
 165.2,193.4 25.8x4.2 10 =| No |
 25,200.8 48.2x4.2 10 <|...........................|
 85.2,200.8 48.2x4.2 10 <|...........................|
 142,200.8 20.6x4.2 10 <|...........|
 167.8,200.8 20.6x4.2 10 <|...........|
 19,209.2 172x5.9 7 <|İş bu emre muharrer senedim................ mukabilinde|.......................................................................................... tarihinde|
 19,218.3 172x5.9 7 <|Bay..............................................................................................................................veya emrü|Havale..............................|
 19,227.5 172x5.9 7 <|yukarıda yazılı Yanlız.....................................................TL..........Krş. Ödeyeceği...........Bedeli ............|ahzolunmuştur.|
Label38 19,236.6 172x4.2 10 <|Otuz sekiz|
Label50 19,244 172x4.2 10 <|TOKAT Mahkemeleri|
 19,251.5 26x4.2 10 <|Adı - Soyadı|
 45,251.5 3x4.2 10 <|:|
 48,251.5 85x4.2 10 <|................................................|
 143,251.5 48x4.2 10 =|İMZA|
 19,258.9 26x4.2 10 <|Adresi|
 45,258.9 3x4.2 10 <|:|
 48,258.9 85x4.2 10 <|................................................|
 45,266.3 3x4.2 10 <|:|
 48,266.3 85x4.2 10 <|................................................|
 19,273.8 26x4.2 10 <|Tel & Gsm|
 45,273.8 3x4.2 10 <|:|
 48,273.8 85x4.2 10 <|................................................|
 143,273.8 48x4.2 10 <|---------------------------|
 19,192.4 60.2x13.7 []
 79.2,192.4 60.2x13.7 []
 139.4,192.4 25.8x13.7 []
 165.2,192.4 25.8x13.7 []
Senet 15,189.4 180x92.6 []
)";

} // namespace

/// A contract whose fields are all different.
class FormPrintTest : public ::testing::Test {
  protected:
    FormPrintTest() {
        const std::pair<Etiket*, MetinBakis> alanlar[]{
            {&sayfa.Unvan, u"Gül Düğün Salonları"},
            {&sayfa.Tarihi, u"Tarih : 03.02.2012"},
            {&sayfa.SozNo, u"Sözleşme No : 418"},
            {&sayfa.Baslik, u"Şartlar"},
            {&sayfa.Sozlesme, u"1 - Kira peşin.\r\n2 - İçki yok."},
            {&sayfa.CSalon, u"Nergis Salonu"},
            {&sayfa.CTuru, u"Nişan"},
            {&sayfa.CTarihi, u"05.05.2012"},
            {&sayfa.CSaati, u"11:00 - 15:30"},
            {&sayfa.Cdavetli, u"350 Kişi"},
            {&sayfa.CTutar, u"12500 TL"},
            {&sayfa.COdenen, u"2500 TL"},
            {&sayfa.CKalan, u"10000 TL"},
            {&sayfa.Ctcno, u"12345678901"},
            {&sayfa.CAdi, u"Ayşe Yılmaz"},
            {&sayfa.CGelin, u"Elif - Can"},
            {&sayfa.CYore, u"Tokat"},
            {&sayfa.CTel, u"0212 1"},
            {&sayfa.CCep, u"0532 2"},
            {&sayfa.CAdres, u"Çay Sk. 3"},
            {&sayfa.Onaciklama, u"Masa düzeni U olacak."},
            {&sayfa.Label38, u"Otuz sekiz"},
            {&sayfa.Label50, u"TOKAT Mahkemeleri"},
        };
        for (const auto& [alan, metin] : alanlar)
            alan->baslik = metin;
    }

    void AciklamayiGoster() { sayfa.Label55.gorunur = sayfa.Onaciklama.gorunur = true; }
    std::vector<Sayfa> Sayfalar() const { return sayfa.Sayfalar(EsitEnli); }
    /// The pages as text from the first line on that begins so.
    Metin MetniSuradan(MetinBakis ilk) const {
        const Metin metin = SayfalarMetni(Sayfalar());
        const std::size_t yer = metin.find(u"\n" + Metin(ilk));
        return yer == Metin::npos ? Metin() : metin.substr(yer + 1);
    }
    /// The size of the clauses.
    double MaddePuntosu() const {
        const std::vector<Sayfa> sayfalar = Sayfalar();
        for (const SayfaParcasi& parca : sayfalar.front().parcalar)
            if (parca.ad == u"Sozlesme")
                return parca.yazi.punto;
        return 0;
    }
    /// In all its variants the page is whole, and shows all of this field.
    void HepsiGorunmeli(const Etiket& alan, MetinBakis ad) {
        AciklamayiGoster();
        SayfalarDuzgunOlmali(Sayfalar());
        EXPECT_EQ(BosluksuzMetin(Sayfalar(), ad), Bosluksuz(alan.baslik));
        sayfa.Senet = true;
        SayfalarDuzgunOlmali(Sayfalar());
        EXPECT_EQ(BosluksuzMetin(Sayfalar(), ad), Bosluksuz(alan.baslik));
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{3}, std::chrono::day{5}}};
    Program program{ortam.Ver(), agac.Kok()};
    FormPrint sayfa{program};
};

TEST_F(FormPrintTest, Every_field_has_its_place_from_top_to_bottom) {
    AciklamayiGoster();
    EXPECT_EQ(SayfalarMetni(Sayfalar()), kAciklamaliSayfa);
}

TEST_F(FormPrintTest, The_note_takes_the_place_of_the_remark) {
    sayfa.Senet = true;
    EXPECT_EQ(MetniSuradan(u" 107,118.6 "), kSenetinYeri);
}

TEST_F(FormPrintTest, The_sentences_of_the_note_stand_whole_in_their_order) {
    sayfa.Senet = true;
    Metin metin;
    const std::vector<Sayfa> sayfalar = Sayfalar();
    for (const SayfaParcasi& parca : sayfalar.front().parcalar)
        if (parca.tur == ParcaTuru::Yazi && parca.yer.ust > 130 && parca.yer.en > 170)
            for (const Metin& satir : parca.satirlar)
                metin += (metin.empty() ? u"" : u" ") + satir;
    EXPECT_EQ(metin,
              u"İş bu emre muharrer senedim................ mukabilinde "
              u".......................................................................................... "
              u"tarihinde "
              u"Bay.........................................................................................."
              u"....................................veya emrü Havale.............................. "
              u"yukarıda yazılı Yanlız.....................................................TL..........Krş. "
              u"Ödeyeceği...........Bedeli ............ ahzolunmuştur. "
              u"Otuz sekiz TOKAT Mahkemeleri");
}

TEST_F(FormPrintTest, A_fresh_page_shows_placeholders_and_neither_remark_nor_note) {
    const FormPrint bos(program);
    const std::vector<Sayfa> sayfalar = bos.Sayfalar(EsitEnli);
    int yerTutucular = 0;
    for (const SayfaParcasi& parca : sayfalar.at(0).parcalar) {
        EXPECT_NE(parca.ad, u"Onaciklama");
        EXPECT_NE(parca.ad, u"Label55");
        EXPECT_NE(parca.ad, u"Senet");
        if (!parca.ad.empty()) {
            EXPECT_EQ(parca.satirlar, std::vector<Metin>{u"xxx"}) << testing::PrintToString(parca.ad);
            ++yerTutucular;
        }
    }
    EXPECT_EQ(yerTutucular, 20);
}

TEST_F(FormPrintTest, The_eight_clauses_of_a_new_firm_fit_on_one_sheet_with_the_note) {
    sayfa.Sozlesme.baslik = program.Splash->Text1;
    sayfa.Senet = true;
    EXPECT_EQ(Sayfalar().size(), 1U);
    HepsiGorunmeli(sayfa.Sozlesme, u"Sozlesme");
}

TEST_F(FormPrintTest, Clauses_get_smaller_before_they_go_on_to_another_sheet) {
    EXPECT_EQ(MaddePuntosu(), 12);
    sayfa.Senet = true;
    sayfa.Sozlesme.baslik = UzunMetin(2000);
    EXPECT_EQ(Sayfalar().size(), 1U);
    EXPECT_LT(MaddePuntosu(), 12);
    EXPECT_GE(MaddePuntosu(), 8);
    // What goes over all the same is as large as it can be there.
    sayfa.Sozlesme.baslik = UzunMetin(5000);
    EXPECT_EQ(Sayfalar().size(), 2U);
    EXPECT_GT(MaddePuntosu(), 10);
    sayfa.Sozlesme.baslik = UzunMetin(9500);
    EXPECT_EQ(Sayfalar().size(), 2U);
    EXPECT_LE(MaddePuntosu(), 9);
}

TEST_F(FormPrintTest, Several_sheets_tell_the_contract_and_their_number_and_one_does_not) {
    sayfa.Sozlesme.baslik = UzunMetin(16000);
    const std::vector<Sayfa> sayfalar = Sayfalar();
    ASSERT_EQ(sayfalar.size(), 3U);
    EXPECT_EQ(sayfalar[0].parcalar.back().satirlar, std::vector<Metin>{u"Sözleşme No : 418  -  1 / 3"});
    EXPECT_EQ(sayfalar[2].parcalar.back().satirlar, std::vector<Metin>{u"Sözleşme No : 418  -  3 / 3"});
    HepsiGorunmeli(sayfa.Sozlesme, u"Sozlesme");
    sayfa.Sozlesme.baslik = u"Kısa";
    EXPECT_EQ(SayfalarMetni(Sayfalar()).find(u"1 / 1"), Metin::npos);
}

TEST_F(FormPrintTest, The_note_stands_at_the_foot_of_its_sheet_to_be_cut_off) {
    sayfa.Senet = true;
    for (const std::size_t harf : {30, 1500}) {
        sayfa.Sozlesme.baslik = UzunMetin(harf);
        const std::vector<Sayfa> sayfalar = Sayfalar();
        ASSERT_EQ(sayfalar.size(), 1U);
        EXPECT_EQ(sayfalar[0].parcalar.back().ad, u"Senet");
        EXPECT_NEAR(sayfalar[0].parcalar.back().yer.Alt(), kSayfaBoyu - SayfaAkisi::kKenar, 1e-6);
    }
}

TEST_F(FormPrintTest, Five_thousand_letters_of_clauses_or_of_a_remark_lose_none) {
    sayfa.Sozlesme.baslik = UzunMetin(5000);
    HepsiGorunmeli(sayfa.Sozlesme, u"Sozlesme");
    sayfa.Onaciklama.baslik = UzunMetin(4999);
    sayfa.Senet = false;
    AciklamayiGoster();
    SayfalarDuzgunOlmali(Sayfalar());
    EXPECT_EQ(BosluksuzMetin(Sayfalar(), u"Onaciklama"), Bosluksuz(sayfa.Onaciklama.baslik));
}

TEST_F(FormPrintTest, An_address_of_five_lines_pushes_down_what_is_under_it) {
    sayfa.CAdres.baslik = u"Çay Sk. 3\r\nGül Apt.\r\nKat 2\r\nDaire 7\r\nErgene Tekirdağ";
    HepsiGorunmeli(sayfa.CAdres, u"CAdres");
    EXPECT_NE(MetniSuradan(u"CAdres ").find(u" 9 <|Çay Sk. 3|Gül Apt.|Kat 2|"), Metin::npos);
}

TEST_F(FormPrintTest, An_address_as_long_as_clauses_stays_on_its_sheet) {
    Metin adres;
    for (int satir = 1; adres.size() < 4000; ++satir)
        adres += u"Apartman " + SayiMetni(satir) + u" yanındaki dükkan\r\n";
    for (const std::size_t boy : {1500U, 3000U, 4000U}) {
        sayfa.CAdres.baslik = adres.substr(0, boy);
        HepsiGorunmeli(sayfa.CAdres, u"CAdres");
    }
}

TEST_F(FormPrintTest, Several_long_values_share_the_height_of_their_column) {
    for (Etiket* deger : {&sayfa.CAdi, &sayfa.CGelin, &sayfa.CYore, &sayfa.CTel})
        deger->baslik = Metin(780, u'W') + deger->baslik;
    HepsiGorunmeli(sayfa.CAdi, u"CAdi");
    HepsiGorunmeli(sayfa.CTel, u"CTel");
}

TEST_F(FormPrintTest, Names_without_a_blank_are_broken_and_never_cut_off) {
    const std::pair<Etiket*, MetinBakis> alanlar[]{{&sayfa.Unvan, u"Unvan"},    {&sayfa.SozNo, u"SozNo"},
                                                   {&sayfa.Tarihi, u"Tarihi"},  {&sayfa.CAdi, u"CAdi"},
                                                   {&sayfa.CSalon, u"CSalon"},  {&sayfa.Baslik, u"Baslik"},
                                                   {&sayfa.Label50, u"Label50"}};
    for (const auto& [alan, ad] : alanlar)
        alan->baslik = Metin(260, u'W') + Metin(ad);
    sayfa.Senet = true;
    for (const auto& [alan, ad] : alanlar)
        EXPECT_EQ(BosluksuzMetin(Sayfalar(), ad), alan->baslik);
    SayfalarDuzgunOlmali(Sayfalar());
}

} // namespace velora::test
