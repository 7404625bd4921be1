// All requests, letter by letter.
#include "online/Istekler.h"

#include "online/OnlineTest.h"

namespace velora::test {

namespace {

struct BeklenenAdres {
    Istek istek;
    Metin adres; // with the values "1", "2" ... behind its keys
};

const BeklenenAdres kBeklenenler[]{
    {Istek::InternetKontrol, u"http://s/x/internetkontrol.php?ver=1"},
    {Istek::Yayindami, u"http://s/x/yayindami.php?firmaid=1"},
    {Istek::FirmaKontrol, u"http://s/x/firmakontrol.php?firmaid=1&a1=2&a2=3&a3=4&a4=5&a5=6&a6=7&a7=8&a8=9&"
                          u"a9=10&a10=11&a11=12&a12=13&a13=14"},
    {Istek::Duyuru, u"http://s/x/duyuru.php?firmaid=1"},
    {Istek::Duyurular, u"http://s/x/duyurular.php"},
    {Istek::DuyuruOkundu, u"http://s/x/duyuruokundu.php?firmaid=1"},
    {Istek::RezKontrol, u"http://s/x/rezkontrol.php?firmaid=1"},
    {Istek::RezOkundu, u"http://s/x/rezokundu.php?firmaid=1&id=2"},
    {Istek::RezSil, u"http://s/x/rezsil.php?firmaid=1&id=2"},
    {Istek::Temizle, u"http://s/x/temizle.php?firmaid=1&salonid=2&sene=3"},
    {Istek::SalonEkle, u"http://s/x/salonekle.php?firmaid=1&salonisim=2"},
    {Istek::Save, u"http://s/x/save.php?firmaid=1&salonid=2&salonisim=3&tarih=4&gunduzgece=5&durum=6&sene=7"},
    {Istek::OneriKaydet, u"http://s/x/onerikaydet.php?firmaid=1&firmaunvani=2&eposta=3&mesaj=4"},
    {Istek::Versiyon, u"http://p/versiyon.php?ver=1"},
};

} // namespace

using IsteklerTest = OnlineTest;

TEST_F(IsteklerTest, Each_request_has_its_place_its_script_and_its_keys_in_their_order) {
    agac.Koy(u"Adresler.dat", "\"http://s/x\",\"http://p/\",\"http://y\",\"z\"\r\n");
    ASSERT_EQ(std::size(kBeklenenler), Istekler().size());
    for (std::size_t i = 0; i < Istekler().size(); ++i) {
        const IstekTanimi& tanim = Istekler()[i];
        EXPECT_EQ(tanim.istek, kBeklenenler[i].istek);
        std::vector<Metin> degerler;
        for (std::size_t no = 1; no <= tanim.anahtarlar.size(); ++no)
            degerler.push_back(SayiMetni(static_cast<long long>(no)));
        EXPECT_EQ(IstekAdresi(program, tanim.istek, degerler), kBeklenenler[i].adres);
    }
}

TEST_F(IsteklerTest, Values_stand_as_they_are_without_any_escaping_which_is_meant) {
    agac.Koy(u"Adresler.dat", "\"http://s/x/\",\"http://p\",\"\",\"\"\r\n");
    EXPECT_EQ(IstekAdresi(program, Istek::Temizle, {u"Gül & Şen=%,", u"", u"\r\n"}),
              u"http://s/x/temizle.php?firmaid=Gül & Şen=%,&salonid=&sene=\r\n");
}

TEST_F(IsteklerTest, Without_a_place_there_is_no_address_whatever_is_asked) {
    agac.Koy(u"Adresler.dat", "\"\",\"http://p\",\"\",\"\"\r\n");
    EXPECT_EQ(IstekAdresi(program, Istek::Duyuru, {u"1"}), u"");
    EXPECT_EQ(IstekAdresi(program, Istek::Versiyon, {u"1"}), u"http://p/versiyon.php?ver=1");
}

} // namespace velora::test
