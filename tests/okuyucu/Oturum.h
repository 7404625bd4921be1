#pragma once

#include <memory>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "destek/GeciciAgac.h"

namespace velora::test {

/// How long is waited for anything: a small machine that does other work is slow.
inline constexpr int kSabirMs = 40'000;

/// A desk of its own: a display in memory, a message bus with the bus of accessibility on it, and the program
/// over the tree, in a copy beside its data. Nothing of the user's session is seen or touched, and two run at
/// once. All of it ends with this, also when this process is killed.
class Oturum {
  public:
    Oturum();
    ~Oturum();
    Oturum(const Oturum&) = delete;
    Oturum& operator=(const Oturum&) = delete;

    /// Display and buses. Says what is missing; nothing when all are up.
    QString Kur();
    /// The program over the tree. Says what goes wrong.
    QString ProgramiBaslat();

    /// Another copy of it, beside the first one.
    QString IkincisiniBaslat();
    /// Whether the other copy has ended by itself.
    bool IkincisiBitti() { return ikinci_.state() == QProcess::NotRunning; }

    /// From now on programs tell of this kind of event, and `slot` of `nesne` hears of it. Says what goes
    /// wrong.
    QString Dinle(const QString& olay, QObject& nesne, const char* slot);
    /// The bus of accessibility.
    QDBusConnection& Erisim() { return *erisim_; }
    /// A key on the window that has the focus, by its X name. False when it couldn't be pressed.
    bool Bas(const QString& tus);
    bool ProgramCalisiyor() const { return program_.state() == QProcess::Running; }

    GeciciAgac agac;

  private:
    QString IlkSatiri(QProcess& surec, const QString& ad, const QStringList& secenekler);
    QString ErisimiKur(const QString& adres);
    QDBusMessage KayitciyiUyandir() const;

    QTemporaryDir klasor_; // all that is a user's own
    QProcessEnvironment ortam_;
    QProcess ekran_; // the display
    QProcess yol_;   // the message bus
    QProcess program_;
    QProcess ikinci_;
    std::unique_ptr<QDBusConnection> erisim_;
};

} // namespace velora::test
