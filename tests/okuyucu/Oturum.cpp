#include "okuyucu/Oturum.h"

#include <csignal>

#include <sys/prctl.h>

#include <QDBusError>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

namespace velora::test {

namespace {

constexpr int kBitisMs = 5'000;
const QString kErisimBaglantisi = QStringLiteral("okuyucu");
const QString kMesajBaglantisi = QStringLiteral("okuyucu-oturum");

/// A process that ends with this one, however this one ends.
void Hazirla(QProcess& surec, const QProcessEnvironment& ortam) {
    surec.setProcessEnvironment(ortam);
    surec.setStandardErrorFile(QProcess::nullDevice());
    surec.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

void Bitir(QProcess& surec) {
    if (surec.state() == QProcess::NotRunning)
        return;
    surec.terminate();
    if (!surec.waitForFinished(kBitisMs)) {
        surec.kill();
        surec.waitForFinished(kBitisMs);
    }
}

QString Hata(const QDBusMessage& yanit) {
    return yanit.errorName() + QStringLiteral(": ") + yanit.errorMessage();
}

} // namespace

Oturum::Oturum() : ortam_(QProcessEnvironment::systemEnvironment()) {
    const QString klasor = klasor_.path();
    for (const char* ad :
         {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        ortam_.insert(QString::fromLatin1(ad), klasor);
    for (const char* ad : {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS",
                           "DESKTOP_SESSION", "XDG_CURRENT_DESKTOP", "QT_SCALE_FACTOR", "NO_AT_BRIDGE"})
        ortam_.remove(QString::fromLatin1(ad));
    ortam_.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
    ortam_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    ortam_.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
}

// The bus goes last but one: with it goes the bus of accessibility, which it has started.
Oturum::~Oturum() {
    Bitir(ikinci_);
    Bitir(program_);
    erisim_.reset();
    QDBusConnection::disconnectFromBus(kErisimBaglantisi);
    QDBusConnection::disconnectFromBus(kMesajBaglantisi);
    Bitir(yol_);
    Bitir(ekran_);
}

QString Oturum::IlkSatiri(QProcess& surec, const QString& ad, const QStringList& secenekler) {
    Hazirla(surec, ortam_);
    surec.start(ad, secenekler);
    QElapsedTimer sure;
    sure.start();
    while (!surec.canReadLine() && surec.state() != QProcess::NotRunning && sure.elapsed() < kSabirMs)
        surec.waitForReadyRead(100);
    return QString::fromLocal8Bit(surec.readLine()).trimmed();
}

QString Oturum::Kur() {
    if (QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty())
        return QStringLiteral("No key can be pressed: xdotool is missing");
    const QString no = IlkSatiri(
        ekran_, QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
         QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (no.isEmpty())
        return QStringLiteral("No display: Xvfb (package xvfb) doesn't start: ") + ekran_.errorString();
    ortam_.insert(QStringLiteral("DISPLAY"), QStringLiteral(":") + no);
    const QString adres =
        IlkSatiri(yol_, QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                   QStringLiteral("--address=unix:dir=") + klasor_.path()});
    if (adres.isEmpty())
        return QStringLiteral("No message bus: dbus-daemon doesn't start: ") + yol_.errorString();
    ortam_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), adres);
    return ErisimiKur(adres);
}

QString Oturum::ErisimiKur(const QString& adres) {
    const QDBusConnection oturum = QDBusConnection::connectToBus(adres, kMesajBaglantisi);
    const QDBusMessage soru =
        QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                       QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    const QDBusMessage yanit = oturum.call(soru, QDBus::Block, kSabirMs);
    if (yanit.type() != QDBusMessage::ReplyMessage)
        return QStringLiteral("No bus of accessibility (package at-spi2-core): ") + Hata(yanit);
    erisim_ = std::make_unique<QDBusConnection>(
        QDBusConnection::connectToBus(yanit.arguments().value(0).toString(), kErisimBaglantisi));
    if (!erisim_->isConnected())
        return QStringLiteral("The bus of accessibility lets nobody in: ") + erisim_->lastError().message();
    const QDBusMessage kayitci = KayitciyiUyandir();
    return kayitci.type() == QDBusMessage::ReplyMessage
               ? QString()
               : QStringLiteral("No registry of accessibility: ") + Hata(kayitci);
}

// The bus starts the registry for the first who asks. On a slow machine the two may miss each other then.
QDBusMessage Oturum::KayitciyiUyandir() const {
    const QDBusMessage soru = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/registry"),
        QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
    QElapsedTimer sure;
    sure.start();
    QDBusMessage yanit = erisim_->call(soru, QDBus::Block, kSabirMs);
    while (yanit.type() != QDBusMessage::ReplyMessage && sure.elapsed() < kSabirMs) {
        QThread::msleep(200);
        yanit = erisim_->call(soru, QDBus::Block, kSabirMs);
    }
    return yanit;
}

QString Oturum::Dinle(const QString& olay, QObject& nesne, const char* slot) {
    if (!erisim_->connect(QString(), QString(), QStringLiteral("org.a11y.atspi.Event.Object"),
                          QStringLiteral("StateChanged"), &nesne, slot))
        return erisim_->lastError().message();
    QDBusMessage istek = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/registry"),
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("RegisterEvent"));
    istek << olay << QStringList() << QString();
    const QDBusMessage yanit = erisim_->call(istek, QDBus::Block, kSabirMs);
    return yanit.type() == QDBusMessage::ReplyMessage ? QString() : Hata(yanit);
}

QString Oturum::ProgramiBaslat() {
    const QString dosya = QString::fromStdU16String((agac.Kok() / "Velora").u16string());
    if (!QFile::copy(QStringLiteral(VELORA_PROGRAM), dosya))
        return QStringLiteral("No copy of " VELORA_PROGRAM);
    Hazirla(program_, ortam_);
    program_.start(dosya, QStringList());
    return program_.waitForStarted(kSabirMs) ? QString() : program_.errorString();
}

QString Oturum::IkincisiniBaslat() {
    Hazirla(ikinci_, ortam_);
    ikinci_.start(program_.program(), QStringList());
    return ikinci_.waitForStarted(kSabirMs) ? QString() : ikinci_.errorString();
}

bool Oturum::Bas(const QString& tus) {
    QProcess surec;
    Hazirla(surec, ortam_);
    surec.start(QStringLiteral("xdotool"), {QStringLiteral("key"), tus});
    return surec.waitForFinished(kSabirMs) && surec.exitStatus() == QProcess::NormalExit &&
           surec.exitCode() == 0;
}

} // namespace velora::test
