#include "reservation/FormKayit.h"

#include "documents/FormPrint.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "screen/TusSuzgeci.h"
#include "setup/FormAyarlar.h"
#include "storage/Sayi.h"
#include "storage/YazimBicimi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr std::array<MetinBakis, 8> kNitelikler{kNitelikSeciniz, u"Düğün",   u"Nişan",     u"Sünnet",
                                                u"Toplantı",     u"Kokteyl", u"Konferans", u"Diğer"};
constexpr MetinBakis kSaatMaskesi = u"##:##";
constexpr MetinBakis kTarihMaskesi = u"##.##.####";

void Ac(MetinKutusu& kutu, bool acik) {
    kutu.etkin = kutu.beyazZemin = acik;
}

} // namespace

FormKayit::FormKayit(Program& program) : program_(program) {
    BasliklariKoy();
    Kay[AnaNo::Niteligi].ogeler.assign(kNitelikler.begin(), kNitelikler.end());
    Kay[AnaNo::Niteligi].metin = kNitelikSeciniz;
    for (const int no : {AnaNo::BaslamaSaati, AnaNo::BitisSaati}) {
        Kay[no].maske = kSaatMaskesi;
        Kay[no].metin = kBosSaat;
    }
    for (const int no : {AnaNo::SozlesmeTarihi, AnaNo::HatirlatmaTarihi}) {
        Kay[no].maske = kTarihMaskesi;
        Kay[no].metin = kBosTarih;
    }
    for (const int no : {AnaNo::AdiSoyadi, AnaNo::Yoresi, AnaNo::GelinDamat, AnaNo::Telefon, AnaNo::Cep,
                         AnaNo::ToplamUcret, AnaNo::BaslamaSaati, AnaNo::SozlesmeTarihi, AnaNo::BitisSaati,
                         AnaNo::KimlikNo, AnaNo::DavetliSayisi})
        Kay[no].odaktaSecilir = true;
    for (const int no : {AnaNo::ToplamUcret, AnaNo::AlinanOdeme, AnaNo::KalanOdeme, AnaNo::SozlesmeNo})
        Kay[no].suzgec = YalnizRakam;
    Kay[AnaNo::ToplamUcret].enUzun = 6;
    Kay[AnaNo::KimlikNo].enUzun = 11;
    Kay[AnaNo::AlinanOdeme].kilitli = Kay[AnaNo::KalanOdeme].kilitli = true;
    SozlesmeNoAc(false);
    Ac(Kay[AnaNo::HatirlatmaTarihi], false);
    Option1.deger = Check18.deger = 1;
    Option1.tiklandi = [this] { Option2.Ata(Option1.deger == 1 ? 0 : Option2.deger); };
    Option2.tiklandi = [this] { Option1.Ata(Option2.deger == 1 ? 0 : Option1.deger); };
    Check19.tiklandi = [this] { Check19_Change(); };
    for (int no = 1; no <= kHizmetSayisi; ++no) {
        Check[no].tiklandi = [this, no] { Check_Change(no); };
        TT[no].enUzun = 75;
        Ac(TT[no], false);
    }
    Aciklamalar.enUzun = Label20.enUzun = 5000;
    Combo1.tiklandi = [this] { Combo1_Click(); };
    Liste.sayiSutunlari = {1};
    Liste.secimDugmeleri.dugmeler = {&Command7, &Command9};
}

void FormKayit::Load() {
    program_.FormTablo->CetvelSil();
    if (KayitAc == 0)
        Kay[AnaNo::SozlesmeTarihi].metin = TarihMetni(program_.Bugun());
    if (MenuleriOku()) {
        if (KayitAc == 0)
            Combo1.Sec(0);
        if (SozlesmeNoOner()) {
            program_.FormPrint.Tut();
            return;
        }
    }
    // One way out for whatever failed: the counter too, when only the menus are missing.
    Kay[AnaNo::SozlesmeNo].metin = u"1";
    if (program_.FormAyarlar->Check2.deger == 0)
        SozlesmeNoAc(true);
}

bool FormKayit::MenuleriOku() {
    Combo1.ogeler.emplace_back(kMenuSeciniz);
    ListCombo1.emplace_back();
    // Without the menus the counter isn't looked at: while they can't be read it isn't set back either.
    const auto bayt = sayacKoken_.Oku(program_.dosyalar, program_.agac.KokYolu(kMenuDosyasi));
    if (!bayt)
        return false;
    DegerOkuyucu okuyucu(*bayt);
    Metin ad;
    Metin icerik;
    while (!okuyucu.Sonda()) {
        if (okuyucu.Oku(ad, icerik) != 2)
            return false;
        if (ad.empty())
            continue;
        Combo1.ogeler.push_back(ad);
        ListCombo1.push_back(icerik);
    }
    return true;
}

bool FormKayit::SozlesmeNoOner() {
    const auto ayarlar = program_.FormAyarlar.Tut();
    if (ayarlar->Check2.deger == 0)
        SozlesmeNoAc(true);
    if (ayarlar->Check7.deger == 1) {
        SozlesmeNoAc(false);
        Kay[AnaNo::SozlesmeNo].metin.clear();
    }
    // Another number in the file is neither on nor off: the field is left as it is.
    if (ayarlar->Check7.deger != 0)
        return true;
    const auto bayt = sayacKoken_.Oku(program_.dosyalar, program_.agac.KokYolu(kSayacDosyasi));
    Metin sonNo;
    if (!bayt || !DegerOkuyucu(*bayt).Oku(sonNo))
        return false;
    Kay[AnaNo::SozlesmeNo].metin = DuzMetin(SayisalDeger(sonNo) + 1);
    return true;
}

void FormKayit::SozlesmeNoAc(bool acik) {
    Kay[AnaNo::SozlesmeNo].kilitli = !acik;
    Kay[AnaNo::SozlesmeNo].beyazZemin = acik;
}

void FormKayit::Activate() {
    if (KayitAc == 1) {
        SozlesmeNoAc(false);
        Kay[AnaNo::ToplamUcret].kilitli = program_.FormTablo->TutarDegistir == 0;
        baslik = u"Kayıt Düzenle";
        Command1.baslik = u"Kaydet";
        Command1.ipucu = u"Değişiklikleri Kaydet";
        Command2.ipucu = u"Değişiklikleri Kaydetmeden Kapat";
    }
    SalonAdi.baslik = program_.FormTablo->Salon.Metni();
    Liste.secimDugmeleri.Ac(false);
    Command12(); // the totals
}

void FormKayit::Command2_Click() {
    Program& p = program_;
    if (KayitAc == 0 && Basildi == 0 &&
        !SilmeyiSor(p,
                    u"Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                    u"Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?",
                    u"Uyarı", Simge::Uyari))
        return;
    p.FormKayit.Bosalt();
}

void FormKayit::Check_Change(int no) {
    const bool acik = Check[no].deger == 1;
    Ac(TT[no], acik);
    if (!acik)
        TT[no].metin.clear();
}

void FormKayit::Check_MouseUp(int no) {
    if (Check[no].deger == 1)
        program_.ortam.odak.ver(EkranAdi::FormKayit, u"TT" + SayiMetni(no));
}

void FormKayit::Check19_Change() {
    Ac(Kay[AnaNo::HatirlatmaTarihi], Check19.deger == 1);
}

void FormKayit::Check19_MouseUp() {
    if (Check19.deger == 1)
        program_.ortam.odak.ver(EkranAdi::FormKayit, u"Kay18");
}

void FormKayit::Combo1_Click() {
    if (Combo1.secili >= 0)
        Label20.metin = ListCombo1[static_cast<std::size_t>(Combo1.secili)];
}

void FormKayit::Kay8_LostFocus() {
    Command12(); // the totals
}

void FormKayit::Kay9_LostFocus() {
    Kay[AnaNo::KalanOdeme].metin =
        DuzMetin(SayisalDeger(Kay[AnaNo::ToplamUcret].metin) - SayisalDeger(Kay[AnaNo::AlinanOdeme].metin));
}

void FormKayit::Kay12_LostFocus() {
    constexpr double kSonSaat = 23;
    constexpr double kSonDakika = 59;
    Metin& saat = Kay[AnaNo::BaslamaSaati].metin;
    const auto parca = [&saat](std::size_t ilk) { return Metin(Parca(saat, ilk, 2)); };
    // Both rules in turn, each on what the one before has left.
    if (SayisalDeger(parca(1)) > kSonSaat)
        saat = u"00:" + parca(4);
    if (SayisalDeger(parca(4)) > kSonDakika)
        saat = parca(1) + u":00";
}

void FormKayit::Command4_Click() {
    SSTab1 = kOdemelerSayfasi;
}

} // namespace velora
