#include "setup/FormRenk.h"

#include <algorithm>
#include <cmath>

#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "storage/Sayi.h"

namespace velora {

namespace {

constexpr int kTaban = 256;
constexpr int kMavi = kTaban * kTaban;
constexpr double kEnCok = kTaban - 1;

/// Upper-case hexadecimal digits of a number not below 0, padded with zeros to `enAz`.
Metin OnAlti(RenkDegeri sayi, std::size_t enAz) {
    Metin metin;
    for (auto kalan = static_cast<std::uint32_t>(sayi); kalan != 0 || metin.size() < enAz; kalan /= 16)
        metin.insert(metin.begin(), u"0123456789ABCDEF"[kalan % 16]);
    return metin;
}

/// A component of a colour from what its field holds; the field may be typed in.
int Bilesen(const MetinKutusu& kutu) {
    return static_cast<int>(std::clamp(SayisalDeger(kutu.metin), 0.0, kEnCok));
}

} // namespace

FormRenk::FormRenk(Program& program) : program_(program) {
    for (MetinKutusu* kutu : {&txtRed, &txtGreen, &txtBlue, &txtWeb, &txtHex, &txtTers})
        kutu->metin = u"0";
    for (MetinKutusu* kutu : {&txtWeb, &txtHex, &txtTers}) {
        kutu->kilitli = true;
        kutu->beyazZemin = false;
    }
    picColorBox.once = u"Seçilen renk";
    txtRed.baslik = u"R";
    txtGreen.baslik = u"G";
    txtBlue.baslik = u"B";
    txtWeb.baslik = u"Web Value";
    txtHex.baslik = u"Hex Value";
    txtTers.baslik = u"Ters değer";
    Command1.baslik = u"Tamam";
    Command2.baslik = u"İptal";
}

void FormRenk::Picture1_MouseDown(RenkDegeri renk) {
    basili_ = true;
    Sec(renk);
}

void FormRenk::Picture1_MouseMove(RenkDegeri renk) {
    if (basili_)
        Sec(renk);
}

void FormRenk::Picture1_MouseUp() {
    basili_ = false;
}

void FormRenk::Sec(RenkDegeri renk) {
    const int hamKirmizi = renk % kTaban;
    const int hamMavi = renk / kMavi;
    const double hamYesil =
        std::nearbyint((static_cast<double>(renk) - 1.0 * kMavi * hamMavi - hamKirmizi) / kTaban);
    const int kirmizi = std::max(hamKirmizi, 0);
    const int yesil = std::max(static_cast<int>(hamYesil), 0);
    const int mavi = std::max(hamMavi, 0);
    txtRed.metin = SayiMetni(kirmizi);
    txtGreen.metin = SayiMetni(yesil);
    txtBlue.metin = SayiMetni(mavi);
    Goster(kirmizi + kTaban * yesil + kMavi * mavi);
}

RenkDegeri FormRenk::Yazilan() const {
    return Bilesen(txtRed) + kTaban * Bilesen(txtGreen) + kMavi * Bilesen(txtBlue);
}

void FormRenk::Bilesen_Change() {
    Goster(Yazilan());
}

void FormRenk::Goster(RenkDegeri renk) {
    picColorBox.zemin = renk;
    const Metin k = OnAlti(renk % kTaban, 2);
    const Metin y = OnAlti(renk / kTaban % kTaban, 2);
    const Metin m = OnAlti(renk / kMavi, 2);
    txtWeb.metin = u'#' + k + y + m;
    txtTers.metin = u"&H" + m + y + k + u'&';
    txtHex.metin = OnAlti(picColorBox.zemin, 1);
}

void FormRenk::Command1_Click() {
    Program& p = program_;
    const RenkDegeri renk = Yazilan();
    if (const double no = SayisalDeger(Tag); no >= 0 && no < kRenkSayisi)
        p.FormAyarlar->renkler[static_cast<std::size_t>(no)] = renk;
    p.FormRenk.Bosalt();
}

void FormRenk::Command2_Click() {
    program_.FormRenk.Bosalt();
}

} // namespace velora
