#include "tools/OrnekMetinler.h"

#include <array>
#include <iterator>

namespace velora::ornek {

namespace {

constexpr MetinBakis kSalonlar[] = {
    u"Gül Salonu",   u"Çınar Kır Bahçesi", u"Papatya Balo Salonu", u"Yakamoz Teras", u"İnci Salonu",
    u"Şelale Bahçe", u"Kristal Davet",     u"Ihlamur Konağı",      u"Öztürk Plaza",  u"Üçler Kır Düğünü",
};

constexpr MetinBakis kKadin[] = {
    u"Elif",  u"Zeynep", u"Ayşe", u"Merve", u"Büşra",  u"Esra",   u"Gülşah", u"Çiğdem", u"Özlem", u"Şeyma",
    u"Fatma", u"Derya",  u"İrem", u"Tuğba", u"Hatice", u"Nurcan", u"Sevgi",  u"Ümmü",   u"Pınar", u"Yağmur",
};

constexpr MetinBakis kErkek[] = {
    u"Mehmet", u"Ahmet",  u"Mustafa", u"Emre", u"Oğuz",  u"Çağrı", u"Ömer",  u"İbrahim", u"Hüseyin", u"Burak",
    u"Serkan", u"Gökhan", u"Şükrü",   u"Ümit", u"Yiğit", u"Tolga", u"Kadir", u"Uğur",    u"Halil",   u"Işık",
};

constexpr MetinBakis kSoyad[] = {
    u"Yılmaz",  u"Kaya",    u"Demir",  u"Çelik", u"Şahin",  u"Öztürk", u"Yıldız", u"Aydın",
    u"Güneş",   u"Özdemir", u"Arslan", u"Doğan", u"Kılıç",  u"Çetin",  u"Koç",    u"Şimşek",
    u"Erdoğdu", u"Bulut",   u"Uçar",   u"Işık",  u"Gürbüz", u"İnce",   u"Tekin",  u"Karakuş",
};

constexpr MetinBakis kKurum[] = {
    u"Anadolu Kooperatifi", u"Ege Eğitim Derneği", u"Güven İnşaat",      u"Yeşilova Belediyesi",
    u"Marmara Tekstil",     u"Çamlık Spor Kulübü", u"Öğretmenler Vakfı", u"Toros Gıda",
};

constexpr MetinBakis kYore[] = {
    u"Sivas", u"Trabzon", u"Konya", u"Çorum", u"Erzurum", u"Şanlıurfa", u"Muğla",
    u"Ordu",  u"Kayseri", u"Iğdır", u"İzmir", u"Elazığ",  u"Gümüşhane", u"Üsküp",
};

constexpr MetinBakis kMahalle[] = {
    u"Cumhuriyet Mah.", u"Bahçelievler Mah.", u"Yeşiltepe Mah.",
    u"Çamlıca Mah.",    u"İstasyon Mah.",     u"Güneşli Mah.",
};

constexpr MetinBakis kCadde[] = {
    u"Atatürk Cad.", u"Lale Sok.", u"Çınar Sok.", u"İnönü Cad.", u"Gül Sok.", u"Şehitler Cad.",
};

constexpr MetinBakis kOnAciklama[] = {
    u"Akşam aranacak.",
    u"Kaporayı havale ile gönderecek.",
    u"Daha önce nişanı da burada yapıldı.",
    u"Salonu görmeye gelecek.\r\nSaat 14:00 uygun.",
};

constexpr MetinBakis kOzelIstek[] = {
    u"Gelin masası pembe süslenecek.",
    u"Yaşlı misafirler için ön masalar ayrılacak.\r\nTekerlekli sandalye rampası açık olsun.",
    u"Çocuklar için oyun köşesi istendi.",
    u"Davul zurna dışarıdan gelecek.",
};

constexpr MetinBakis kHizmetNotu[] = {
    u"5 katlı; frambuazlı",
    u"Gelin girişinde",
    u"",
    u"",
    u"Her masaya servis",
    u"Kişi başı 150 gr.",
    u"Pasta kesiminde",
    u"Çocukluk fotoğrafları",
    u"Beyaz araç",
    u"Kırmızı gül ile",
    u"Sabah 10:00",
    u"",
    u"5 kişilik ekip",
    u"Türk halk müziği",
    u"2 kamera",
    u"Albüm 40 sayfa",
    u"Yöresel oyun havaları",
};
static_assert(std::size(kHizmetNotu) == 17);

constexpr Nitelik kNitelik[] = {
    {u"Düğün", 58, 60000, 180000, true, false},  {u"Nişan", 14, 35000, 80000, true, false},
    {u"Sünnet", 12, 40000, 90000, false, false}, {u"Toplantı", 5, 15000, 40000, false, true},
    {u"Kokteyl", 4, 20000, 50000, false, true},  {u"Konferans", 3, 15000, 35000, false, true},
    {u"Diğer", 4, 10000, 30000, false, false},
};

constexpr Menu kMenu[] = {
    {u"Kokteyl Menü", u"Kuru pasta tabağı, limonata\r\nYaş pasta, çay"},
    {u"Klasik Düğün Menüsü", u"Düğün çorbası\r\nEt sote, pirinç pilavı\r\nMevsim salata\r\nKadayıf"},
    {u"Özel Gün Menüsü",
     u"Ezogelin çorbası\r\nKuzu tandır, iç pilav\r\nÇoban salata, zeytinyağlı sarma\r\nSütlaç"},
};

constexpr Tatil kTatil[] = {
    {u"01.01.", u"Yılbaşı"},
    {u"23.04.", u"Ulusal Egemenlik ve Çocuk Bayramı"},
    {u"01.05.", u"Emek ve Dayanışma Günü"},
    {u"19.05.", u"Atatürk'ü Anma Gençlik ve Spor Bayramı"},
    {u"15.07.", u"Demokrasi ve Milli Birlik Günü"},
    {u"30.08.", u"Zafer Bayramı"},
    {u"29.10.", u"Cumhuriyet Bayramı"},
};

constexpr GiderTuru kAylik[] = {
    {u"Personel Maaşları", 60000, 90000},
    {u"Elektrik", 6000, 14000},
    {u"Su Faturası", 900, 2600},
    {u"Temizlik Malzemesi", 700, 1800},
};

constexpr GiderTuru kArada[] = {
    {u"Piyanist", 3000, 6000},           {u"Çiçek ve Süsleme", 1500, 5000},
    {u"Ses Sistemi Bakımı", 2000, 7000}, {u"Masa Örtüsü Yıkama", 800, 2200},
    {u"Bahçe Düzenleme", 1500, 4500},    {u"Mutfak Tüpü", 600, 1500},
};

} // namespace

std::span<const MetinBakis> HazirSalonAdlari() {
    return kSalonlar;
}
std::span<const MetinBakis> KadinAdlari() {
    return kKadin;
}
std::span<const MetinBakis> ErkekAdlari() {
    return kErkek;
}
std::span<const MetinBakis> Soyadlari() {
    return kSoyad;
}
std::span<const MetinBakis> Kurumlar() {
    return kKurum;
}
std::span<const MetinBakis> Yoreler() {
    return kYore;
}
std::span<const MetinBakis> Mahalleler() {
    return kMahalle;
}
std::span<const MetinBakis> Caddeler() {
    return kCadde;
}
std::span<const MetinBakis> OnAciklamalar() {
    return kOnAciklama;
}
std::span<const MetinBakis> OzelIstekler() {
    return kOzelIstek;
}
std::span<const MetinBakis> HizmetNotlari() {
    return kHizmetNotu;
}
std::span<const Nitelik> Nitelikler() {
    return kNitelik;
}
std::span<const Menu> Menuler() {
    return kMenu;
}
std::span<const Tatil> ResmiTatiller() {
    return kTatil;
}
std::span<const GiderTuru> AylikGiderler() {
    return kAylik;
}
std::span<const GiderTuru> AradaGiderler() {
    return kArada;
}

} // namespace velora::ornek
