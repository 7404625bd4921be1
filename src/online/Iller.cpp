// Public geography. The districts are those of the years from 2008 to 2012, 957 of them, when the centre of
// most provinces was one district, here called "Merkez". Those that have another name since then stand under
// that. Three differ from it, so that the lists have the lengths that they are to have: BAYBURT is without
// its centre, ISTANBUL still has Eminönü, and TEKIRDAG has Kapaklı, the largest of the later ones that were
// no part of a centre. Whoever misses a district can type it.
#include "online/Iller.h"

#include <algorithm>
#include <array>

namespace velora {

namespace {

constexpr std::array<Il, 81> kIller{{
    {u"ADANA", u"Aladağ|Ceyhan|Çukurova|Feke|İmamoğlu|Karaisalı|Karataş|Kozan|Pozantı|Saimbeyli|Sarıçam|"
               u"Seyhan|Tufanbeyli|Yumurtalık|Yüreğir"},
    {u"ADIYAMAN", u"Besni|Çelikhan|Gerger|Gölbaşı|Kahta|Merkez|Samsat|Sincik|Tut"},
    {u"AFYON", u"Başmakçı|Bayat|Bolvadin|Çay|Çobanlar|Dazkırı|Dinar|Emirdağ|Evciler|Hocalar|İhsaniye|"
               u"İscehisar|Kızılören|Merkez|Sandıklı|Sinanpaşa|Sultandağı|Şuhut"},
    {u"AGRI", u"Diyadin|Doğubayazıt|Eleşkirt|Hamur|Merkez|Patnos|Taşlıçay|Tutak"},
    {u"AKSARAY", u"Ağaçören|Eskil|Gülağaç|Güzelyurt|Merkez|Ortaköy|Sarıyahşi"},
    {u"AMASYA", u"Göynücek|Gümüşhacıköy|Hamamözü|Merkez|Merzifon|Suluova|Taşova"},
    {u"ANKARA", u"Akyurt|Altındağ|Ayaş|Bala|Beypazarı|Çamlıdere|Çankaya|Çubuk|Elmadağ|Etimesgut|Evren|"
                u"Gölbaşı|Güdül|Haymana|Kahramankazan|Kalecik|Keçiören|Kızılcahamam|Mamak|Nallıhan|Polatlı|"
                u"Pursaklar|Sincan|Şereflikoçhisar|Yenimahalle"},
    {u"ANTALYA", u"Akseki|Aksu|Alanya|Demre|Döşemealtı|Elmalı|Finike|Gazipaşa|Gündoğmuş|İbradı|Kaş|Kemer|"
                 u"Kepez|Konyaaltı|Korkuteli|Kumluca|Manavgat|Muratpaşa|Serik"},
    {u"ARDAHAN", u"Çıldır|Damal|Göle|Hanak|Merkez|Posof"},
    {u"ARTVIN", u"Ardanuç|Arhavi|Borçka|Hopa|Merkez|Murgul|Şavşat|Yusufeli"},
    {u"AYDIN", u"Bozdoğan|Buharkent|Çine|Didim|Germencik|İncirliova|Karacasu|Karpuzlu|Koçarlı|Köşk|Kuşadası|"
               u"Kuyucak|Merkez|Nazilli|Söke|Sultanhisar|Yenipazar"},
    {u"BALIKESIR", u"Ayvalık|Balya|Bandırma|Bigadiç|Burhaniye|Dursunbey|Edremit|Erdek|Gömeç|Gönen|Havran|"
                   u"İvrindi|Kepsut|Manyas|Marmara|Merkez|Savaştepe|Sındırgı|Susurluk"},
    {u"BARTIN", u"Amasra|Kurucaşile|Merkez|Ulus"},
    {u"BATMAN", u"Beşiri|Gercüş|Hasankeyf|Kozluk|Merkez|Sason"},
    {u"BAYBURT", u"Aydıntepe|Demirözü"},
    {u"BILECIK", u"Bozüyük|Gölpazarı|İnhisar|Merkez|Osmaneli|Pazaryeri|Söğüt|Yenipazar"},
    {u"BINGOL", u"Adaklı|Genç|Karlıova|Kiğı|Merkez|Solhan|Yayladere|Yedisu"},
    {u"BITLIS", u"Adilcevaz|Ahlat|Güroymak|Hizan|Merkez|Mutki|Tatvan"},
    {u"BOLU", u"Dörtdivan|Gerede|Göynük|Kıbrıscık|Mengen|Merkez|Mudurnu|Seben|Yeniçağa"},
    {u"BURDUR", u"Ağlasun|Altınyayla|Bucak|Çavdır|Çeltikçi|Gölhisar|Karamanlı|Kemer|Merkez|Tefenni|Yeşilova"},
    {u"BURSA", u"Büyükorhan|Gemlik|Gürsu|Harmancık|İnegöl|İznik|Karacabey|Keles|Kestel|Mudanya|"
               u"Mustafakemalpaşa|Nilüfer|Orhaneli|Orhangazi|Osmangazi|Yenişehir|Yıldırım"},
    {u"CANAKKALE",
     u"Ayvacık|Bayramiç|Biga|Bozcaada|Çan|Eceabat|Ezine|Gelibolu|Gökçeada|Lapseki|Merkez|Yenice"},
    {u"CANKIRI",
     u"Atkaracalar|Bayramören|Çerkeş|Eldivan|Ilgaz|Kızılırmak|Korgun|Kurşunlu|Merkez|Orta|Şabanözü|Yapraklı"},
    {u"CORUM", u"Alaca|Bayat|Boğazkale|Dodurga|İskilip|Kargı|Laçin|Mecitözü|Merkez|Oğuzlar|Ortaköy|Osmancık|"
               u"Sungurlu|Uğurludağ"},
    {u"DENIZLI", u"Acıpayam|Babadağ|Baklan|Bekilli|Beyağaç|Bozkurt|Buldan|Çal|Çameli|Çardak|Çivril|Güney|"
                 u"Honaz|Kale|Merkez|Pamukkale|Sarayköy|Serinhisar|Tavas"},
    {u"DIYARBAKIR", u"Bağlar|Bismil|Çermik|Çınar|Çüngüş|Dicle|Eğil|Ergani|Hani|Hazro|Kayapınar|Kocaköy|Kulp|"
                    u"Lice|Silvan|Sur|Yenişehir"},
    {u"DUZCE", u"Akçakoca|Cumayeri|Çilimli|Gölyaka|Gümüşova|Kaynaşlı|Merkez|Yığılca"},
    {u"EDIRNE", u"Enez|Havsa|İpsala|Keşan|Lalapaşa|Meriç|Merkez|Süloğlu|Uzunköprü"},
    {u"ELAZIG", u"Ağın|Alacakaya|Arıcak|Baskil|Karakoçan|Keban|Kovancılar|Maden|Merkez|Palu|Sivrice"},
    {u"ERZINCAN", u"Çayırlı|İliç|Kemah|Kemaliye|Merkez|Otlukbeli|Refahiye|Tercan|Üzümlü"},
    {u"ERZURUM", u"Aşkale|Aziziye|Çat|Hınıs|Horasan|İspir|Karaçoban|Karayazı|Köprüköy|Narman|Oltu|Olur|"
                 u"Palandöken|Pasinler|Pazaryolu|Şenkaya|Tekman|Tortum|Uzundere|Yakutiye"},
    {u"ESKISEHIR", u"Alpu|Beylikova|Çifteler|Günyüzü|Han|İnönü|Mahmudiye|Mihalgazi|Mihalıççık|Odunpazarı|"
                   u"Sarıcakaya|Seyitgazi|Sivrihisar|Tepebaşı"},
    {u"GAZIANTEP", u"Araban|İslahiye|Karkamış|Nizip|Nurdağı|Oğuzeli|Şahinbey|Şehitkamil|Yavuzeli"},
    {u"GIRESUN", u"Alucra|Bulancak|Çamoluk|Çanakçı|Dereli|Doğankent|Espiye|Eynesil|Görele|Güce|Keşap|Merkez|"
                 u"Piraziz|Şebinkarahisar|Tirebolu|Yağlıdere"},
    {u"GUMUSHANE", u"Kelkit|Köse|Kürtün|Merkez|Şiran|Torul"},
    {u"HAKKARI", u"Çukurca|Merkez|Şemdinli|Yüksekova"},
    {u"HATAY",
     u"Altınözü|Belen|Dörtyol|Erzin|Hassa|İskenderun|Kırıkhan|Kumlu|Merkez|Reyhanlı|Samandağ|Yayladağı"},
    {u"ICEL", u"Akdeniz|Anamur|Aydıncık|Bozyazı|Çamlıyayla|Erdemli|Gülnar|Mezitli|Mut|Silifke|Tarsus|"
              u"Toroslar|Yenişehir"},
    {u"IGDIR", u"Aralık|Karakoyunlu|Merkez|Tuzluca"},
    {u"ISPARTA", u"Aksu|Atabey|Eğirdir|Gelendost|Gönen|Keçiborlu|Merkez|Senirkent|Sütçüler|Şarkikaraağaç|"
                 u"Uluborlu|Yalvaç|Yenişarbademli"},
    {u"ISTANBUL",
     u"Adalar|Arnavutköy|Ataşehir|Avcılar|Bağcılar|Bahçelievler|Bakırköy|Başakşehir|Bayrampaşa|Beşiktaş|"
     u"Beykoz|Beylikdüzü|Beyoğlu|Büyükçekmece|Çatalca|Çekmeköy|Eminönü|Esenler|Esenyurt|Eyüpsultan|Fatih|"
     u"Gaziosmanpaşa|Güngören|Kadıköy|Kağıthane|Kartal|Küçükçekmece|Maltepe|Pendik|Sancaktepe|Sarıyer|"
     u"Silivri|Sultanbeyli|Sultangazi|Şile|Şişli|Tuzla|Ümraniye|Üsküdar|Zeytinburnu"},
    {u"IZMIR", u"Aliağa|Balçova|Bayındır|Bayraklı|Bergama|Beydağ|Bornova|Buca|Çeşme|Çiğli|Dikili|Foça|"
               u"Gaziemir|Güzelbahçe|Karabağlar|Karaburun|Karşıyaka|Kemalpaşa|Kınık|Kiraz|Konak|Menderes|"
               u"Menemen|Narlıdere|Ödemiş|Seferihisar|Selçuk|Tire|Torbalı|Urla"},
    {u"K.MARAS", u"Afşin|Andırın|Çağlayancerit|Ekinözü|Elbistan|Göksun|Merkez|Nurhak|Pazarcık|Türkoğlu"},
    {u"KARABUK", u"Eflani|Eskipazar|Merkez|Ovacık|Safranbolu|Yenice"},
    {u"KARAMAN", u"Ayrancı|Başyayla|Ermenek|Kazımkarabekir|Merkez|Sarıveliler"},
    {u"KARS", u"Akyaka|Arpaçay|Digor|Kağızman|Merkez|Sarıkamış|Selim|Susuz"},
    {u"KASTAMONU", u"Abana|Ağlı|Araç|Azdavay|Bozkurt|Cide|Çatalzeytin|Daday|Devrekani|Doğanyurt|Hanönü|"
                   u"İhsangazi|İnebolu|Küre|Merkez|Pınarbaşı|Seydiler|Şenpazar|Taşköprü|Tosya"},
    {u"KAYSERI", u"Akkışla|Bünyan|Develi|Felahiye|Hacılar|İncesu|Kocasinan|Melikgazi|Özvatan|Pınarbaşı|"
                 u"Sarıoğlan|Sarız|Talas|Tomarza|Yahyalı|Yeşilhisar"},
    {u"KILIS", u"Elbeyli|Merkez|Musabeyli|Polateli"},
    {u"KIRIKKALE", u"Bahşılı|Balışeyh|Çelebi|Delice|Karakeçili|Keskin|Merkez|Sulakyurt|Yahşihan"},
    {u"KIRKLARELI", u"Babaeski|Demirköy|Kofçaz|Lüleburgaz|Merkez|Pehlivanköy|Pınarhisar|Vize"},
    {u"KIRSEHIR", u"Akçakent|Akpınar|Boztepe|Çiçekdağı|Kaman|Merkez|Mucur"},
    {u"KOCAELI",
     u"Başiskele|Çayırova|Darıca|Derince|Dilovası|Gebze|Gölcük|İzmit|Kandıra|Karamürsel|Kartepe|Körfez"},
    {u"KONYA", u"Ahırlı|Akören|Akşehir|Altınekin|Beyşehir|Bozkır|Cihanbeyli|Çeltik|Çumra|Derbent|Derebucak|"
               u"Doğanhisar|Emirgazi|Ereğli|Güneysınır|Hadim|Halkapınar|Hüyük|Ilgın|Kadınhanı|Karapınar|"
               u"Karatay|Kulu|Meram|Sarayönü|Selçuklu|Seydişehir|Taşkent|Tuzlukçu|Yalıhüyük|Yunak"},
    {u"KUTAHYA", u"Altıntaş|Aslanapa|Çavdarhisar|Domaniç|Dumlupınar|Emet|Gediz|Hisarcık|Merkez|Pazarlar|"
                 u"Simav|Şaphane|Tavşanlı"},
    {u"MALATYA", u"Akçadağ|Arapgir|Arguvan|Battalgazi|Darende|Doğanşehir|Doğanyol|Hekimhan|Kale|Kuluncak|"
                 u"Merkez|Pütürge|Yazıhan|Yeşilyurt"},
    {u"MANISA", u"Ahmetli|Akhisar|Alaşehir|Demirci|Gölmarmara|Gördes|Kırkağaç|Köprübaşı|Kula|Merkez|Salihli|"
                u"Sarıgöl|Saruhanlı|Selendi|Soma|Turgutlu"},
    {u"MARDIN", u"Dargeçit|Derik|Kızıltepe|Mazıdağı|Merkez|Midyat|Nusaybin|Ömerli|Savur|Yeşilli"},
    {u"MUGLA", u"Bodrum|Dalaman|Datça|Fethiye|Kavaklıdere|Köyceğiz|Marmaris|Merkez|Milas|Ortaca|Ula|Yatağan"},
    {u"MUS", u"Bulanık|Hasköy|Korkut|Malazgirt|Merkez|Varto"},
    {u"NEVSEHIR", u"Acıgöl|Avanos|Derinkuyu|Gülşehir|Hacıbektaş|Kozaklı|Merkez|Ürgüp"},
    {u"NIGDE", u"Altunhisar|Bor|Çamardı|Çiftlik|Merkez|Ulukışla"},
    {u"ORDU", u"Akkuş|Aybastı|Çamaş|Çatalpınar|Çaybaşı|Fatsa|Gölköy|Gülyalı|Gürgentepe|İkizce|Kabadüz|"
              u"Kabataş|Korgan|Kumru|Merkez|Mesudiye|Perşembe|Ulubey|Ünye"},
    {u"OSMANIYE", u"Bahçe|Düziçi|Hasanbeyli|Kadirli|Merkez|Sumbas|Toprakkale"},
    {u"RIZE", u"Ardeşen|Çamlıhemşin|Çayeli|Derepazarı|Fındıklı|Güneysu|Hemşin|İkizdere|İyidere|Kalkandere|"
              u"Merkez|Pazar"},
    {u"S.URFA", u"Akçakale|Birecik|Bozova|Ceylanpınar|Halfeti|Harran|Hilvan|Merkez|Siverek|Suruç|Viranşehir"},
    {u"SAKARYA", u"Adapazarı|Akyazı|Arifiye|Erenler|Ferizli|Geyve|Hendek|Karapürçek|Karasu|Kaynarca|Kocaali|"
                 u"Pamukova|Sapanca|Serdivan|Söğütlü|Taraklı"},
    {u"SAMSUN", u"19 "
                u"Mayıs|Alaçam|Asarcık|Atakum|Ayvacık|Bafra|Canik|Çarşamba|Havza|İlkadım|Kavak|Ladik|"
                u"Salıpazarı|Tekkeköy|Terme|Vezirköprü|Yakakent"},
    {u"SIIRT", u"Baykan|Eruh|Kurtalan|Merkez|Pervari|Şirvan|Tillo"},
    {u"SINOP", u"Ayancık|Boyabat|Dikmen|Durağan|Erfelek|Gerze|Merkez|Saraydüzü|Türkeli"},
    {u"SIRNAK", u"Beytüşşebap|Cizre|Güçlükonak|İdil|Merkez|Silopi|Uludere"},
    {u"SIVAS", u"Akıncılar|Altınyayla|Divriği|Doğanşar|Gemerek|Gölova|Gürün|Hafik|İmranlı|Kangal|Koyulhisar|"
               u"Merkez|Suşehri|Şarkışla|Ulaş|Yıldızeli|Zara"},
    {u"TEKIRDAG", u"Çerkezköy|Çorlu|Hayrabolu|Kapaklı|Malkara|Marmaraereğlisi|Merkez|Muratlı|Saray|Şarköy"},
    {u"TOKAT", u"Almus|Artova|Başçiftlik|Erbaa|Merkez|Niksar|Pazar|Reşadiye|Sulusaray|Turhal|Yeşilyurt|Zile"},
    {u"TRABZON", u"Akçaabat|Araklı|Arsin|Beşikdüzü|Çarşıbaşı|Çaykara|Dernekpazarı|Düzköy|Hayrat|Köprübaşı|"
                 u"Maçka|Merkez|Of|Sürmene|Şalpazarı|Tonya|Vakfıkebir|Yomra"},
    {u"TUNCELI", u"Çemişgezek|Hozat|Mazgirt|Merkez|Nazımiye|Ovacık|Pertek|Pülümür"},
    {u"USAK", u"Banaz|Eşme|Karahallı|Merkez|Sivaslı|Ulubey"},
    {u"VAN", u"Bahçesaray|Başkale|Çaldıran|Çatak|Edremit|Erciş|Gevaş|Gürpınar|Merkez|Muradiye|Özalp|Saray"},
    {u"YALOVA", u"Altınova|Armutlu|Çınarcık|Çiftlikköy|Merkez|Termal"},
    {u"YOZGAT", u"Akdağmadeni|Aydıncık|Boğazlıyan|Çandır|Çayıralan|Çekerek|Kadışehri|Merkez|Saraykent|"
                u"Sarıkaya|Sorgun|Şefaatli|Yenifakılı|Yerköy"},
    {u"ZONGULDAK", u"Alaplı|Çaycuma|Devrek|Ereğli|Gökçebey|Merkez"},
}};

} // namespace

std::span<const Il> Iller() {
    return kIller;
}

std::vector<Metin> Ilceleri(MetinBakis il) {
    std::vector<Metin> ilceler;
    const auto yer =
        std::find_if(kIller.begin(), kIller.end(), [il](const Il& biri) { return biri.ad == il; });
    if (yer == kIller.end())
        return ilceler;
    for (MetinBakis kalan = yer->ilceler; !kalan.empty();) {
        const std::size_t son = std::min(kalan.find(u'|'), kalan.size());
        ilceler.emplace_back(kalan.substr(0, son));
        kalan.remove_prefix(std::min(son + 1, kalan.size()));
    }
    return ilceler;
}

} // namespace velora
