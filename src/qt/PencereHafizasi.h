#pragma once

#include <QString>

class QWidget;

namespace velora {

/// What a user's windows looked like when they were closed: sizes, columns, the place of the main window, and
/// whether a window was maximised. Kept in one small file of the user, never in the data tree. A file that
/// can't be read or written is as good as none, and nothing is said of it.
class PencereHafizasi {
  public:
    /// An empty path remembers nothing.
    explicit PencereHafizasi(QString dosya = {}) : dosya_(std::move(dosya)) {}

    /// The file in the user's folder of settings.
    static QString KullaniciDosyasi();

    /// Before a window is shown, under its name: as it was. A main window of which nothing is known starts
    /// maximised.
    void Yerlestir(QWidget& pencere, const QString& ad) const;

    /// Keeps what a window looks like now.
    void Sakla(const QWidget& pencere, const QString& ad) const;

  private:
    QString dosya_;
};

/// The program's own settings of a user, in a small file beside that one. It is only written: nobody reads it
/// back.
class AyarDosyasi {
  public:
    /// An empty path keeps nothing.
    explicit AyarDosyasi(QString dosya = {}) : dosya_(std::move(dosya)) {}

    /// The file in the user's folder of settings.
    static QString KullaniciDosyasi();

    void Yaz(const QString& bolum, const QString& anahtar, const QString& deger) const;

  private:
    QString dosya_;
};

} // namespace velora
