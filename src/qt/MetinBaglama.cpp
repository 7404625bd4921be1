// The binder's text fields.
#include <algorithm>
#include <chrono>
#include <memory>

#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/GirdiSuzgeci.h"
#include "qt/Gorunum.h"

namespace velora {

namespace {

constexpr QChar kBosYer = u'_'; // stands in a mask where nothing is typed, on the screen and in the files

/// The toolkit's form of a mask: "#" is a digit or nothing, and what is missing shows as "_".
QString QMaske(const Metin& maske) {
    if (maske.empty())
        return {};
    return QMetin(maske).replace(u'#', u'0') + u';' + kBosYer;
}

/// What a field shows, empty places of its mask included: the toolkit's own text leaves them out.
QString Gorunen(const QLineEdit& kutu) {
    return kutu.inputMask().isEmpty() ? kutu.text() : kutu.displayText();
}

QString SatirSonlariEkran(const Metin& metin) {
    return QMetin(metin).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

Metin SatirSonlariDosya(QString metin) {
    return MetinYap(metin.replace(u'\n', QStringLiteral("\r\n")));
}

/// Selects the whole text of a field when it gets the focus, by the mouse too: that sets its cursor afterwards.
class OdaktaSecen : public QObject {
  public:
    explicit OdaktaSecen(QLineEdit& kutu) : QObject(&kutu) { kutu.installEventFilter(this); }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() == QEvent::FocusIn)
            QMetaObject::invokeMethod(nesne, "selectAll", Qt::QueuedConnection);
        return QObject::eventFilter(nesne, olay);
    }
};

QDate QGun(const Gun& gun) {
    return {static_cast<int>(gun.year()), static_cast<int>(static_cast<unsigned>(gun.month())),
            static_cast<int>(static_cast<unsigned>(gun.day()))};
}

void SinirlariKoy(QDateEdit& kutu, const TarihSecici& model) {
    if (model.enKucuk)
        kutu.setMinimumDate(QGun(*model.enKucuk));
    else
        kutu.clearMinimumDate();
    if (model.enBuyuk)
        kutu.setMaximumDate(QGun(*model.enBuyuk));
    else
        kutu.clearMaximumDate();
}

template <class Kutu>
void DurumunuVer(Kutu& kutu, const MetinKutusu& model) {
    kutu.setEnabled(model.etkin);
    kutu.setReadOnly(model.kilitli);
    RenkVer(kutu, QPalette::Base,
            model.beyazZemin ? QColor(Qt::white) : kutu.palette().color(QPalette::Window));
}

} // namespace

void Baglayici::OdagiIzle(QWidget& parca, const MetinKutusu& model, const Isleyici& odakGitti) {
    if (auto* satir = qobject_cast<QLineEdit*>(&parca); satir != nullptr && model.odaktaSecilir)
        new OdaktaSecen(*satir);
    if (!odakGitti)
        return;
    odaklananlar_[&parca] = odakGitti;
    parca.installEventFilter(this);
}

void Baglayici::Bagla(QLineEdit& kutu, MetinKutusu& model, const AlanIsleri& isler) {
    kutu.setInputMask(QMaske(model.maske));
    OdagiIzle(kutu, model, isler.odakGitti);
    const auto eski = std::make_shared<QString>();
    connect(&kutu, &QLineEdit::textEdited, this, [this, &kutu, &model, isler, eski] {
        Calistir([&] {
            const QString yeni = kutu.inputMask().isEmpty()
                                     ? GirdiyiSuz(*eski, kutu.text(), model.suzgec, model.enUzun)
                                     : Gorunen(kutu);
            model.metin = MetinYap(yeni);
            if (isler.degisti)
                isler.degisti();
        });
    });
    Izle([&kutu, &model, eski] {
        const QSignalBlocker sus(&kutu);
        const QString metin = QMetin(model.metin);
        *eski = metin;
        if (Gorunen(kutu) != metin)
            MetniKoy(kutu, metin);
        DurumunuVer(kutu, model);
    });
}

void Baglayici::Bagla(QPlainTextEdit& kutu, MetinKutusu& model, const AlanIsleri& isler) {
    kutu.setTabChangesFocus(true);
    OdagiIzle(kutu, model, isler.odakGitti);
    const auto eski = std::make_shared<QString>();
    connect(&kutu, &QPlainTextEdit::textChanged, this, [this, &kutu, &model, isler, eski] {
        if (kutu.toPlainText() == *eski)
            return;
        Calistir([&] {
            model.metin =
                SatirSonlariDosya(GirdiyiSuz(*eski, kutu.toPlainText(), model.suzgec, model.enUzun));
            if (isler.degisti)
                isler.degisti();
        });
    });
    Izle([&kutu, &model, eski] {
        const QSignalBlocker sus(&kutu);
        const QString metin = SatirSonlariEkran(model.metin);
        *eski = metin;
        if (kutu.toPlainText() != metin) {
            const int yer = kutu.textCursor().position();
            kutu.setPlainText(metin);
            QTextCursor imlec = kutu.textCursor();
            imlec.setPosition(std::min(yer, static_cast<int>(metin.size())));
            kutu.setTextCursor(imlec);
        }
        DurumunuVer(kutu, model);
    });
}

void Baglayici::Bagla(QComboBox& kutu, MetinKutusu& model, const std::vector<Metin>& ogeler) {
    kutu.setEditable(true);
    kutu.setInsertPolicy(QComboBox::NoInsert);
    kutu.setCompleter(nullptr);
    for (const Metin& oge : ogeler)
        kutu.addItem(QMetin(oge));
    kutu.installEventFilter(this); // the wheel
    connect(&kutu, &QComboBox::activated, this, [this, &kutu, &model](int sira) {
        Calistir([&] { model.metin = MetinYap(kutu.itemText(sira)); });
    });
    Bagla(*kutu.lineEdit(), model);
}

void Baglayici::Bagla(QDateEdit& kutu, TarihSecici& model) {
    kutu.setCalendarPopup(true);
    kutu.setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    connect(&kutu, &QDateEdit::dateChanged, this, [this, &model](QDate gun) {
        Calistir([&model, gun] {
            model.deger =
                Gun(std::chrono::year(gun.year()), std::chrono::month(static_cast<unsigned>(gun.month())),
                    std::chrono::day(static_cast<unsigned>(gun.day())));
        });
    });
    Izle([&kutu, &model] {
        const QSignalBlocker sus(&kutu);
        SinirlariKoy(kutu, model);
        kutu.setDate(QGun(model.deger));
    });
}

} // namespace velora
