#pragma once

#include <functional>

#include <QDBusConnection>
#include <QList>
#include <QString>

namespace velora::test {

/// Something that the program shows, by the name that the bus of accessibility gives it. One that isn't there
/// any more answers with nothing.
class Okunan {
  public:
    Okunan() = default;
    Okunan(QString sahip, QString yol) : sahip_(std::move(sahip)), yol_(std::move(yol)) {}

    bool Var() const { return !yol_.isEmpty() && !yol_.endsWith(QStringLiteral("/null")); }
    const QString& Yol() const { return yol_; }

    QString Ad() const { return Ozellik("Accessible", "Name").toString(); }
    QString Aciklama() const { return Ozellik("Accessible", "Description").toString(); }
    QString Rol() const;
    Okunan Ust() const;
    QList<Okunan> Cocuklar() const;
    bool Odaklanir() const { return Durumu(11); }
    bool Odakta() const { return Durumu(12); }
    bool Gorunur() const { return Durumu(25); }
    /// The label that names it; nothing when none does.
    Okunan Etiketi() const;

    // Of a table.
    int Satirlar() const { return Ozellik("Table", "NRows").toInt(); }
    int Sutunlar() const { return Ozellik("Table", "NColumns").toInt(); }
    Okunan Hucre(int satir, int sutun) const;
    Okunan SatirBasi(int satir) const;
    Okunan SutunBasi(int sutun) const;

    /// This and all below it that is shown, without the cells of the year table: 799 of them.
    QList<Okunan> Hepsi() const;
    /// The first below it of this role and name; of any role when none is given.
    Okunan Bul(const QString& rol, const QString& ad) const;

    /// All programs on the bus.
    static Okunan MasaUstu();
    /// Where everything here is asked.
    static void Baglan(const QDBusConnection& baglanti);

  private:
    QVariant Ozellik(const char* arayuz, const char* ad) const;
    QVariant Sor(const char* arayuz, const char* soru, const QVariantList& degerler = {}) const;
    bool Durumu(unsigned bit) const;

    QString sahip_;
    QString yol_;
};

} // namespace velora::test
