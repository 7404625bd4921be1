#include "documents/FormPrint.h"

#include "access/Splash.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "destek/Sayfalar.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

// Of the page with the remark, all of it: field, place, size, side, lines.
constexpr MetinBakis kAciklamaliSayfa = uR"(--
Unvan 60,15 90x14 18K =|Gül Düğün Salonları|
Tarihi 153,15 42x4.2 10 >|Tarih : 03.02.2012|
SozNo 153,19.2 42x4.2 10 >|Sözleşme No : 418|
Baslik 15,33 180x5.1 12K =|Şartlar|
Sozlesme 15,40.1 180x9.3 11 <|1 - Kira peşin.|2 - İçki yok.|
 15,53.4 32x4.2 10 <|Salon İsmi|
 47,53.4 3x4.2 10 <|:|
CSalon 50,53.4 53x4.2 10 <|Nergis Salonu|
 15,57.6 32x4.2 10 <|Rezervasyon Türü|
 47,57.6 3x4.2 10 <|:|
CTuru 50,57.6 53x4.2 10 <|Nişan|
 15,61.9 32x4.2 10 <|Rezervasyon Tarihi|
 47,61.9 3x4.2 10 <|:|
CTarihi 50,61.9 53x4.2 10 <|05.05.2012|
 15,66.1 32x4.2 10 <|Rezervasyon Saati |
 47,66.1 3x4.2 10 <|:|
CSaati 50,66.1 53x4.2 10 <|11:00 - 15:30|
 15,70.3 32x4.2 10 <|Davetli Sayısı|
 47,70.3 3x4.2 10 <|:|
Cdavetli 50,70.3 53x4.2 10 <|350 Kişi|
 15,74.6 32x4.2 10 <|Toplam Ücret|
 47,74.6 3x4.2 10 <|:|
CTutar 50,74.6 53x4.2 10 <|12500 TL|
 15,78.8 32x4.2 10 <|Ödenen Peşinat  |
 47,78.8 3x4.2 10 <|:|
COdenen 50,78.8 53x4.2 10 <|2500 TL|
 15,83 32x4.2 10 <|Kalan Ücret|
 47,83 3x4.2 10 <|:|
CKalan 50,83 53x4.2 10 <|10000 TL|
 107,53.4 32x4.2 10 <|T.C.Kimlik No|
 139,53.4 3x4.2 10 <|:|
Ctcno 142,53.4 53x4.2 10 <|12345678901|
 107,57.6 32x4.2 10 <|Adı - Soyadı |
 139,57.6 3x4.2 10 <|:|
CAdi 142,57.6 53x4.2 10 <|Ayşe Yılmaz|
 107,61.9 32x4.2 10 <|Gelin ve Damat |
 139,61.9 3x4.2 10 <|:|
CGelin 142,61.9 53x4.2 10 <|Elif - Can|
 107,66.1 32x4.2 10 <|Yöresi|
 139,66.1 3x4.2 10 <|:|
CYore 142,66.1 53x4.2 10 <|Tokat|
 107,70.3 32x4.2 10 <|Telefon|
 139,70.3 3x4.2 10 <|:|
CTel 142,70.3 53x4.2 10 <|0212 1|
 107,74.6 32x4.2 10 <|Cep|
 139,74.6 3x4.2 10 <|:|
CCep 142,74.6 53x4.2 10 <|0532 2|
 107,78.8 32x4.2 10 <|Adres|
 139,78.8 3x4.2 10 <|:|
CAdres 142,78.8 53x12.7 10 <|Çay Sk. 3|
 15,95.5 88x4.2 10K =|Kiraya Veren İmza|
 15,109.5 88x4.2 10K =|----------------------------|
 107,95.5 88x4.2 10K =|Kiralayan İmza|
 107,109.5 88x4.2 10K =|----------------------------|
Label55 15,117.7 180x4.2 10K <|Ön Açıklama :|
Onaciklama 15,122 180x4.2 10 <|Masa düzeni U olacak.|
)";

// Of the page with the note, from the last rule to sign on.
constexpr MetinBakis kSenetinYeri = uR"( 107,109.5 88x4.2 10K =|----------------------------|
 19,121.7 60.2x4.2 10 =|    Ödeme Tarihi    |
 79.2,121.7 60.2x4.2 10 =|    Türk Lirası    |
 139.4,121.7 25.8x4.2 10 =|  Kuruş  |
 165.2,121.7 25.8x4.2 10 =| No |
 25,127.5 48.2x4.2 10 <|...........................|
 85.2,127.5 48.2x4.2 10 <|...........................|
 142,127.5 20.6x4.2 10 <|...........|
 167.8,127.5 20.6x4.2 10 <|...........|
 19,133.2 172x5.9 7 <|İş bu emre muharrer senedim................ mukabilinde|.......................................................................................... tarihinde|
 19,140.6 172x5.9 7 <|Bay..............................................................................................................................veya emrü|Havale..............................|
 19,148 172x5.9 7 <|yukarıda yazılı Yanlız.....................................................TL..........Krş. Ödeyeceği...........Bedeli ............|ahzolunmuştur.|
Label38 19,155.5 172x4.2 10 <|Otuz sekiz|
Label50 19,161.2 172x4.2 10 <|TOKAT Mahkemeleri|
 19,166.9 26x4.2 10 <|Adı - Soyadı|
 45,166.9 3x4.2 10 <|:|
 48,166.9 85x4.2 10 <|................................................|
 143,166.9 48x4.2 10 =|İMZA|
 19,172.7 26x4.2 10 <|Adresi|
 45,172.7 3x4.2 10 <|:|
 48,172.7 85x4.2 10 <|................................................|
 45,178.4 3x4.2 10 <|:|
 48,178.4 85x4.2 10 <|................................................|
 19,184.1 26x4.2 10 <|Tel & Gsm|
 45,184.1 3x4.2 10 <|:|
 48,184.1 85x4.2 10 <|................................................|
 143,184.1 48x4.2 10 <|---------------------------|
Senet 15,117.7 180x74.6 []
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
    EXPECT_EQ(MetniSuradan(u" 107,109.5 "), kSenetinYeri);
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
    EXPECT_EQ(MaddePuntosu(), 11);
    sayfa.Senet = true;
    sayfa.Sozlesme.baslik = UzunMetin(2000);
    EXPECT_EQ(Sayfalar().size(), 1U);
    EXPECT_LT(MaddePuntosu(), 11);
    EXPECT_GT(MaddePuntosu(), 8);
    sayfa.Sozlesme.baslik = UzunMetin(5000);
    EXPECT_EQ(Sayfalar().size(), 2U);
    EXPECT_EQ(MaddePuntosu(), 8);
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
