#include "okuyucu/Erisim.h"

#include <optional>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace velora::test {

namespace {

constexpr int kYanitMs = 20'000;
constexpr uint kAdlandiran = 2;                     // the relation "is named by"
constexpr int kTablonunGozleri = 24 * 31 + 31 + 24; // cells and heads stand before its widgets

std::optional<QDBusConnection>& ErisimYolu() {
    static std::optional<QDBusConnection> yol;
    return yol;
}

Okunan Oku(const QDBusArgument& deger) {
    QString sahip;
    QDBusObjectPath yol;
    deger.beginStructure();
    deger >> sahip >> yol;
    deger.endStructure();
    return {sahip, yol.path()};
}

Okunan Oku(const QVariant& deger) {
    return deger.canConvert<QDBusArgument>() ? Oku(deger.value<QDBusArgument>()) : Okunan();
}

} // namespace

void Okunan::Baglan(const QDBusConnection& baglanti) {
    ErisimYolu() = baglanti;
}

Okunan Okunan::MasaUstu() {
    return {QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/accessible/root")};
}

QVariant Okunan::Sor(const char* arayuz, const char* soru, const QVariantList& degerler) const {
    if (!Var())
        return {};
    QDBusMessage mesaj =
        QDBusMessage::createMethodCall(sahip_, yol_, QString::fromLatin1(arayuz), QString::fromLatin1(soru));
    mesaj.setArguments(degerler);
    const QDBusMessage yanit = ErisimYolu()->call(mesaj, QDBus::Block, kYanitMs);
    const QVariant deger =
        yanit.type() == QDBusMessage::ReplyMessage ? yanit.arguments().value(0) : QVariant();
    return deger.canConvert<QDBusVariant>() ? deger.value<QDBusVariant>().variant() : deger;
}

QVariant Okunan::Ozellik(const char* arayuz, const char* ad) const {
    return Sor("org.freedesktop.DBus.Properties", "Get",
               {QStringLiteral("org.a11y.atspi.") + QString::fromLatin1(arayuz), QString::fromLatin1(ad)});
}

QString Okunan::Rol() const {
    return Sor("org.a11y.atspi.Accessible", "GetRoleName").toString();
}

Okunan Okunan::Ust() const {
    return Oku(Ozellik("Accessible", "Parent"));
}

QList<Okunan> Okunan::Cocuklar() const {
    QList<Okunan> cocuklar;
    const QVariant yanit = Sor("org.a11y.atspi.Accessible", "GetChildren");
    if (!yanit.canConvert<QDBusArgument>())
        return cocuklar;
    const auto dizi = yanit.value<QDBusArgument>();
    for (dizi.beginArray(); !dizi.atEnd();)
        cocuklar << Oku(dizi);
    dizi.endArray();
    return cocuklar;
}

bool Okunan::Durumu(unsigned bit) const {
    const QVariant yanit = Sor("org.a11y.atspi.Accessible", "GetState");
    const auto bitler = yanit.canConvert<QDBusArgument>() ? qdbus_cast<QList<uint>>(yanit) : QList<uint>();
    return ((bitler.value(static_cast<qsizetype>(bit / 32)) >> (bit % 32)) & 1U) != 0;
}

Okunan Okunan::Etiketi() const {
    const QVariant yanit = Sor("org.a11y.atspi.Accessible", "GetRelationSet");
    if (!yanit.canConvert<QDBusArgument>())
        return {};
    Okunan etiket;
    const auto dizi = yanit.value<QDBusArgument>();
    for (dizi.beginArray(); !dizi.atEnd();) {
        uint tur = 0;
        dizi.beginStructure();
        dizi >> tur;
        for (dizi.beginArray(); !dizi.atEnd();)
            if (const Okunan biri = Oku(dizi); tur == kAdlandiran)
                etiket = biri;
        dizi.endArray();
        dizi.endStructure();
    }
    dizi.endArray();
    return etiket;
}

Okunan Okunan::Hucre(int satir, int sutun) const {
    return Oku(Sor("org.a11y.atspi.Table", "GetAccessibleAt", {satir, sutun}));
}

Okunan Okunan::SatirBasi(int satir) const {
    return Oku(Sor("org.a11y.atspi.Table", "GetRowHeader", {satir}));
}

Okunan Okunan::SutunBasi(int sutun) const {
    return Oku(Sor("org.a11y.atspi.Table", "GetColumnHeader", {sutun}));
}

QList<Okunan> Okunan::Hepsi() const {
    QList<Okunan> hepsi{*this};
    const QList<Okunan> cocuklar = Cocuklar();
    for (qsizetype i = cocuklar.size() > kTablonunGozleri ? kTablonunGozleri : 0; i < cocuklar.size(); ++i)
        if (cocuklar[i].Gorunur())
            hepsi << cocuklar[i].Hepsi();
    return hepsi;
}

Okunan Okunan::Bul(const QString& rol, const QString& ad) const {
    for (const Okunan& biri : Hepsi())
        if (biri.Ad() == ad && (rol.isEmpty() || biri.Rol() == rol))
            return biri;
    return {};
}

} // namespace velora::test
