#pragma once

#include <functional>
#include <vector>

#include <QDialog>
#include <QString>
#include <QTest>

#include "storage/Metin.h"

class QAbstractItemView;
class QTreeWidget;

namespace velora::test {

class GuiFirma;

// What a user does to windows, with the mouse and the keyboard.

/// Types into the widget that has the focus, any signs.
void Yaz(const QString& metin);

/// Puts the focus into a field, by the name of its control, and types over all that it holds.
void AlanaYaz(QWidget& pencere, const char* ad, const QString& metin);

/// What is done in a modal window while it stands and has the focus.
using Is = std::function<void(QDialog&)>;

/// Runs `ac`, which opens modal windows one after the other and returns when they are closed; each of them
/// gets the next of `isler`. A window that its work leaves open is closed. Fails when fewer windows come; a
/// window more is closed and fails too.
void Pencerede(const std::function<void()>& ac, const std::vector<Is>& isler);

/// Done when pending events run the next time.
void Siraya(QObject& sahip, const std::function<void()>& is);

/// Waits until a window is closed, and perhaps gone. An access key presses its button only after a moment.
void Kapanincaya(QDialog& pencere);

/// In a message box: it must say `metin`; its button `dugme` is clicked.
Is Mesaj(const QString& metin, const QString& dugme = QStringLiteral("Tamam"));

/// In an input box: `metin` is typed and Enter pressed.
Is Girdi(const QString& metin);

/// In a box of the toolkit's: `is` is done with it.
template <class Kutu>
Is Kutuda(const std::function<void(Kutu&)>& is) {
    return [is](QDialog& pencere) {
        auto* kutu = qobject_cast<Kutu*>(&pencere);
        QVERIFY(kutu != nullptr);
        is(*kutu);
    };
}

/// In any window: a key is pressed.
Is TusBas(Qt::Key tus);

/// A key on the widget that has the focus, and the name of that widget's control.
void Tusla(Qt::Key tus, Qt::KeyboardModifiers ek = Qt::NoModifier);
QString Odaktaki();

/// Opens the main screen and on it a new record on a day of the hall and year that it stands on; `isler` as
/// in `Pencerede`.
void YeniKayitta(GuiFirma& firma, MetinBakis gun, const std::vector<Is>& isler);

/// Clicks on an entry of the menu "Ayarlar" of the main screen, by the name of its control.
void MenudenSec(GuiFirma& firma, const char* girdi);

/// One notch of the wheel over the middle of a widget, as the system sends it: the toolkit may give the focus
/// to what lies there before anything else happens.
void TekeriCevir(QWidget& parca);

/// Clicks on the middle of a widget of a window, by the name of its control.
void Tikla(QWidget& pencere, const char* ad);

/// A row of a list, counted from 0: where it stands on the viewport, what its columns say, clicks on it.
QPoint SatirYeri(const QAbstractItemView& liste, int sira);
QStringList SatirYazilari(const QTreeWidget& liste, int sira);
void SatiraTikla(const QAbstractItemView& liste, int sira);
void SatiraCiftTikla(const QAbstractItemView& liste, int sira);

/// A widget of a window by the name of its control.
template <class Parca>
Parca& Parcasi(const QWidget& pencere, const char* ad) {
    return *pencere.findChild<Parca*>(QString::fromLatin1(ad));
}

/// A caption without its access key.
QString Isaretsiz(QString metin);

} // namespace velora::test
