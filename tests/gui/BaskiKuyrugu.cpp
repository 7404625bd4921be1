#include "gui/BaskiKuyrugu.h"

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

#include <QDir>
#include <QStandardPaths>
#include <QTest>

#include "gui/PdfOkuma.h"

namespace velora::test {

namespace {

// The PDF printer reads its settings here and nowhere else, under a name of the queue's own.
const QString kAyarKlasoru = QStringLiteral("/etc/cups");
const QString kAyarBasi = QStringLiteral("cups-pdf-veloratest");
const QString kTanim = QStringLiteral("/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd");
const QString kKuyruk = QStringLiteral("velora");
constexpr int kBaslamaMs = 20'000;
constexpr int kBasmaMs = 30'000;

constexpr const char* kServisAyari = R"(LogLevel warn
Listen %1/soket
PidFile %1/pid
Browsing No
WebInterface No
DefaultAuthType None
PreserveJobFiles Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)";

constexpr const char* kServisYerleri = R"(ServerRoot %1/kok
StateDir %1/durum
CacheDir %1/onbellek
RequestRoot %1/isler
TempDir %1/isler/gecici
AccessLog %1/gunluk/erisim
ErrorLog %1/gunluk/hata
PageLog %1/gunluk/sayfa
SystemGroup root
LogFileGroup root
SyncOnClose No
)";

constexpr const char* kYaziciAyari = R"(Out %1/basilan
AnonDirName %1/basilan
Spool %1/gecici
Log %1/gunluk
GSTmp %1/gecici
Grp root
Label 1
TitlePref 1
)";

QString AyarDosyasi() {
    return QStringLiteral("%1/%2-%3.conf").arg(kAyarKlasoru, kAyarBasi).arg(getpid());
}

/// Takes away what a test left behind that was killed.
void KalanlariSil() {
    const auto kalanlar = QDir(kAyarKlasoru).entryInfoList({kAyarBasi + QStringLiteral("-*.conf")});
    for (const QFileInfo& kalan : kalanlar) {
        const int surec = kalan.completeBaseName().section(u'-', -1).toInt();
        if (surec > 0 && kill(surec, 0) != 0)
            QFile::remove(kalan.filePath());
    }
}

void Yaz(const QString& dosya, const QString& metin) {
    QFile hedef(dosya);
    QVERIFY(hedef.open(QIODevice::WriteOnly));
    hedef.write(metin.toUtf8());
}

QStringList Basilanlar(const QString& klasor) {
    return QDir(klasor).entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Time | QDir::Reversed);
}

} // namespace

QString BaskiKuyrugu::Engel() {
    if (geteuid() != 0)
        return QStringLiteral("The PDF printer of CUPS works for root alone.");
    for (const char* program : {"cupsd", "lpadmin", "gs"})
        if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty() &&
            !QFile::exists(QStringLiteral("/usr/sbin/") + QString::fromLatin1(program)))
            return QString::fromLatin1(program) + QStringLiteral(" isn't installed.");
    return QFile::exists(kTanim) ? QString() : QStringLiteral("The PDF printer of CUPS isn't installed.");
}

BaskiKuyrugu::BaskiKuyrugu() {
    KalanlariSil();
    AyarlariYaz();
    qputenv("CUPS_SERVER", Yol("soket").toUtf8());
    qputenv("HOME", klasor_.path().toUtf8()); // what the user chose for other printers is none of ours
    hazir_ = Basla();
}

BaskiKuyrugu::~BaskiKuyrugu() {
    Uyandir();
    servis_.terminate();
    if (!servis_.waitForFinished(kBaslamaMs)) {
        servis_.kill();
        servis_.waitForFinished();
    }
    QFile::remove(AyarDosyasi());
    qunsetenv("CUPS_SERVER");
}

void BaskiKuyrugu::AyarlariYaz() const {
    // The filters of the service work as another user.
    QFile::setPermissions(klasor_.path(), QFile::permissions(klasor_.path()) | QFile::ReadGroup |
                                              QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    for (const char* ad :
         {"kok", "durum", "onbellek", "isler", "isler/gecici", "gecici", "gunluk", "basilan"})
        QVERIFY(QDir(klasor_.path()).mkdir(QString::fromLatin1(ad)));
    const std::pair<QString, const char*> dosyalar[]{{Yol("cupsd.conf"), kServisAyari},
                                                     {Yol("cups-files.conf"), kServisYerleri},
                                                     {AyarDosyasi(), kYaziciAyari}};
    for (const auto& [dosya, ayar] : dosyalar)
        Yaz(dosya, QString::fromLatin1(ayar).arg(klasor_.path()));
}

bool BaskiKuyrugu::Basla() {
    // It goes with its test, also with one that crashes.
    servis_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    servis_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    servis_.start(QStringLiteral("/usr/sbin/cupsd"),
                  {QStringLiteral("-f"), QStringLiteral("-c"), Yol("cupsd.conf"), QStringLiteral("-s"),
                   Yol("cups-files.conf")});
    if (!servis_.waitForStarted(kBaslamaMs) ||
        !QTest::qWaitFor([this] { return QFile::exists(Yol("soket")); }, kBaslamaMs))
        return false;
    // PostScript, which its paper goes through, has names for the letters of Western Europe alone; this way
    // they can still be read.
    const QString aygit = QStringLiteral("cups-pdf:/") + QFileInfo(AyarDosyasi()).completeBaseName().mid(9);
    Cikti(QStringLiteral("lpadmin"),
          {QStringLiteral("-p"), kKuyruk, QStringLiteral("-E"), QStringLiteral("-v"), aygit,
           QStringLiteral("-P"), kTanim, QStringLiteral("-o"),
           QStringLiteral("pdftops-renderer-default=pdftocairo")});
    Cikti(QStringLiteral("lpadmin"), {QStringLiteral("-d"), kKuyruk});
    return Cikti(QStringLiteral("lpstat"), {QStringLiteral("-d")}).contains(kKuyruk.toUtf8());
}

void BaskiKuyrugu::Komut(const char* program) {
    Cikti(QString::fromLatin1(program), {kKuyruk});
}

void BaskiKuyrugu::Uyut() const {
    kill(static_cast<pid_t>(servis_.processId()), SIGSTOP);
}

void BaskiKuyrugu::Uyandir() const {
    kill(static_cast<pid_t>(servis_.processId()), SIGCONT);
}

void BaskiKuyrugu::KuyruguSil() {
    Cikti(QStringLiteral("lpadmin"), {QStringLiteral("-x"), kKuyruk});
}

std::filesystem::path BaskiKuyrugu::Basilan(int adet) const {
    const QString klasor = Yol("basilan");
    // It is whole as soon as its job has left the queue.
    const auto bitti = [&] {
        return Basilanlar(klasor).size() >= adet &&
               Cikti(QStringLiteral("lpstat"), {QStringLiteral("-o")}).isEmpty();
    };
    if (!QTest::qWaitFor(bitti, kBasmaMs)) {
        QFile gunluk(Yol("gunluk/hata"));
        qWarning("%s", gunluk.open(QIODevice::ReadOnly) ? gunluk.readAll().constData() : "no log");
        return {};
    }
    return (klasor + u'/' + Basilanlar(klasor)[adet - 1]).toStdU16String();
}

std::filesystem::path BaskiKuyrugu::Verilen(int is) const {
    return (Yol("isler") + QStringLiteral("/d%1-001").arg(is, 5, 10, QChar(u'0'))).toStdU16String();
}

} // namespace velora::test
