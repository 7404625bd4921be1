// What the start does where one of its files is missing.
#include "access/SplashTest.h"
#include "storage/KodSayfasi.h"

namespace velora::test {

namespace {

// The contract that a firm without one gets, byte for byte in the code page of the files.
constexpr MetinBakis kSozlesme =
    u"\"Sözleşme Maddeleri\",\"1 - Anlaşma yapıldığında belli bir kaparo alınır. Kalan kısım düğün esnasında "
    u"ödenir.\r\n"
    u"2 - Organizasyon herhangi bir nedenle iptal edilirse kaparo geri iade edilmez. Organizasyonun iptali "
    u"salona "
    u"bir ay kala bildirilirse sözleşme karşılıklı fesh edilir, sadece kaparo yanar düğün tarihi bir aydan "
    u"az "
    u"zaman zarfında iptal edilirse kira ücretinin yarısını ödeme zorunluluğu vardır. Aksi halde İlgili "
    u"Mahkemelerin salahiyetini kabul etmiş sayılır.\r\n"
    u"3 - Düğün salonunda içki içme ve bulundurma yasaktır.\r\n"
    u"4 - Düğün salonunda düğün anında nahoş hadiselerden doğacak her türlü maddi ve manevi hasarların "
    u"mesuliyeti "
    u"düğün sahibine aittir, sözleşmeyi imzalayan kişidir. Her hangi bir vukuat anında İlgili Mahkemelerin "
    u"salahiyetini kabul etmiş olur.\r\n"
    u"5 - Düğün salonunda düğün başlamadan önce anons yapılmak kaydı ile herkes kendi özel eşyasından "
    u"sorumludur, "
    u"kaybolan hiçbir özel eşyadan salonumuz sorumlu değildir.\r\n"
    u"6 - Salon sahibinin elinde olmadan oluşabilecek deprem, yangın, felaket v.s gibi doğal afetlerden "
    u"salonumuz "
    u"işlemez hale geldiğinde, salonumuz hiçbir şekilde sorumlu tutulamaz.\r\n"
    u"7 - Bu sözleşmede yazılı her sözleşme maddesini okuyarak ve kabul ederek salonumuzu kiralıyor olup "
    u"imzalayarak kabul etmiş olursunuz.\r\n"
    u"8 - Fiyatlarımıza KDV dahil değildir.\"\r\n\r\n";

} // namespace

class SplashOnarimTest : public SplashTest {
  protected:
    SplashOnarimTest() { ortam.baglanti = false; }

    void Kaldir(MetinBakis ad) const { std::filesystem::remove(agac.Yol(Metin(ad))); }
    void KayipBekle(const Metin& ad) {
        ortam.Bekle(
            BeklenenKutu{u"Sistem Hatası",
                         u"Programın çalışması için gereken (" + ad +
                             u") dosyası kayıp.\nProgram otomatik olarak kayıp dosyayı geri yüklemeye "
                             u"çalışacak.",
                         Simge::Kritik});
    }
    void OnarimBekle(const Metin& ad) {
        ortam.Bekle(BeklenenKutu{u"Sistem Onarımı", u"Kayıp dosya (" + ad + u") başarıyla geri yüklendi."});
    }
    void LoginBekle() {
        TikeDek(70);
        EXPECT_EQ(ortam.acilanlar, (std::vector{EkranAdi::Splash, EkranAdi::FormSifre}));
    }
};

TEST_F(SplashOnarimTest, Without_a_firm_the_first_run_begins_and_no_other_file_is_looked_at) {
    for (const MetinBakis ad : {u"Firma.dll", u"Menuler.dat", u"Sozlesme.dat", u"User.dll"})
        Kaldir(ad);
    Baslat();
    EXPECT_EQ(ortam.acilanlar, (std::vector{EkranAdi::FormFirma}));
    EXPECT_EQ(program.FormFirma->Tag, u"1");
    EXPECT_EQ(Acilis().Timer1.aralik, 0);
    EXPECT_FALSE(agac.DosyaVar(u"Menuler.dat"));
    EXPECT_FALSE(agac.DosyaVar(u"Sozlesme.dat"));
    EXPECT_FALSE(ortam.bitti);
}

TEST_F(SplashOnarimTest, Missing_menus_are_made_anew_empty_and_the_ladder_follows) {
    Kaldir(u"Menuler.dat");
    KayipBekle(u"Menuler.dat");
    OnarimBekle(u"Menuler.dat");
    Baslat();
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "");
    EXPECT_EQ(Acilis().Timer1.aralik, 60);
    LoginBekle();
}

TEST_F(SplashOnarimTest,
       A_missing_contract_is_made_anew_with_eight_clauses_and_a_line_end_too_many_which_is_meant) {
    Kaldir(u"Sozlesme.dat");
    KayipBekle(u"Sozlesme.dat");
    OnarimBekle(u"Sozlesme.dat");
    Baslat();
    const std::string bayt = agac.Bayt(u"Sozlesme.dat");
    EXPECT_EQ(KodCoz(bayt), kSozlesme);
    EXPECT_EQ(bayt.substr(0, 34), "\"S\xF6zle\xFEme Maddeleri\",\"1 - Anla\xFE"
                                  "ma ");
    LoginBekle();
}

TEST_F(SplashOnarimTest, Of_two_missing_files_each_start_repairs_one_which_is_meant) {
    Kaldir(u"Menuler.dat");
    Kaldir(u"Sozlesme.dat");
    KayipBekle(u"Menuler.dat");
    OnarimBekle(u"Menuler.dat");
    Baslat();
    LoginBekle();
    EXPECT_FALSE(agac.DosyaVar(u"Sozlesme.dat"));
    ortam.acilanlar.clear();
    Program ikinci{ortam.Ver(), agac.Kok()};
    KayipBekle(u"Sozlesme.dat");
    OnarimBekle(u"Sozlesme.dat");
    ikinci.Splash->Baslat();
    EXPECT_TRUE(agac.DosyaVar(u"Sozlesme.dat"));
}

TEST_F(SplashOnarimTest, Files_that_are_there_stay_as_they_are_also_when_empty) {
    agac.Koy(u"Firma.dll", "");
    agac.Koy(u"Sozlesme.dat", "");
    Baslat();
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"Klasik\",\"et\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Sozlesme.dat"), "");
    EXPECT_EQ(agac.Bayt(u"Firma.dll"), "");
    LoginBekle();
}

TEST_F(SplashOnarimTest, A_folder_that_takes_no_file_hinders_nobody_and_no_repair_is_claimed) {
    Kaldir(u"Menuler.dat");
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    KayipBekle(u"Menuler.dat");
    Baslat();
    EXPECT_FALSE(agac.DosyaVar(u"Menuler.dat"));
    LoginBekle();
}

TEST_F(SplashOnarimTest, Menus_that_can_neither_be_read_nor_asked_about_just_now_are_not_written_over) {
    program.dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return (is == DosyaIsi::Oku || is == DosyaIsi::VarMi) && yol.ends_with(u"Menuler.dat");
    };
    KayipBekle(u"Menuler.dat");
    Baslat();
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"Klasik\",\"et\"\r\n");
    LoginBekle();
}

TEST_F(SplashOnarimTest, Where_no_file_can_be_read_the_first_run_begins_and_can_be_left_with_nothing_lost) {
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Oku; };
    Baslat();
    EXPECT_EQ(ortam.acilanlar, (std::vector{EkranAdi::FormFirma}));
    ortam.Bekle(BeklenenKutu{
        u"Uyarı", u"Programın kurulumu henüz tamamlanmadı!\nKurulumdan çıkmak istediğinize emin misiniz?",
        Simge::Soru, Cevap::Evet});
    VELORA_BAS(program.FormFirma, Command2);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_EQ(agac.Bayt(u"Firma.dll").substr(0, 7), "\"G\",\"A\"");
    EXPECT_EQ(Dosya(), Satir("admin", "g5", "11111111101"));
}

} // namespace velora::test
