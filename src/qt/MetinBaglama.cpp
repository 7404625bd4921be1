// The binder's text fields.
#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <utility>

#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/CokSatirKutusu.h"
#include "qt/GirdiSuzgeci.h"
#include "qt/Gorunum.h"
#include "qt/Pano.h"

namespace velora {

namespace {

/// The toolkit's form of a mask: "#" is a digit or nothing, and what is missing shows as "_".
QString QMaske(const Metin& maske) {
    if (maske.empty())
        return {};
    return QMetin(maske).replace(kMaskeRakami, u'0') + u';' + kBosYer;
}

/// What a field shows, empty places of its mask included: the toolkit's own text leaves them out.
QString Gorunen(const QLineEdit& kutu) {
    return kutu.inputMask().isEmpty() ? kutu.text() : kutu.displayText();
}

QString Rakamlari(QString metin) {
    return metin.remove(QRegularExpression(QStringLiteral("[^0-9]")));
}

/// What a field of one line shows now. Other signs than its keys bring were pasted; what is typed is no
/// amount by itself, and leaves a text that came from a file as it is.
QString Gelen(const QLineEdit& kutu, const MetinKutusu& model, const QString& eski) {
    QString metin = kutu.text();
    const QString giren = Giren(eski, metin);
    if (model.suzgec == nullptr || std::ranges::all_of(giren, [](QChar harf) { return harf.isDigit(); }))
        return metin;
    return QMetin(TutarOlarak(MetinYap(metin)));
}

/// What a field with a mask takes of what it shows. The toolkit puts what is pasted digit by digit into the
/// places: where that has just been done, the text goes in as it is meant.
Metin MaskeliMetin(const QLineEdit& kutu, const MetinKutusu& model, const QString& eski) {
    const QString pano = PanoMetni();
    if (const auto oturan = MaskeyeOturt(model.maske, MetinYap(pano));
        oturan && Rakamlari(pano) == Rakamlari(Gorunen(kutu)))
        return *oturan;
    return MaskeyiSuz(model.maske, MetinYap(eski), MetinYap(Gorunen(kutu)));
}

/// How a field stood when it last took the text of its model. The field may be unable to show a text as it
/// is; that is no reason to put it again.
struct SonHal {
    QString metin;   ///< of the model
    QString gorunen; ///< in the field

    [[nodiscard]] bool Ayni(const QString& yeniMetin, const QString& yeniGorunen) const {
        return metin == yeniMetin && gorunen == yeniGorunen;
    }
};

/// Selects the whole text of a field when it gets the focus, by the mouse too: that sets its cursor
/// afterwards. One that comes back from a menu or another window to the field that it had left for that
/// selects nothing: what is typed there goes on.
class OdaktaSecen : public QObject {
  public:
    explicit OdaktaSecen(QLineEdit& kutu) : QObject(&kutu) { kutu.installEventFilter(this); }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() == QEvent::FocusOut)
            donecek_ = Baglayici::OdakDonecek(*olay);
        if (olay->type() == QEvent::FocusIn && !(donecek_ && Baglayici::OdakDonecek(*olay)))
            QMetaObject::invokeMethod(nesne, "selectAll", Qt::QueuedConnection);
        return QObject::eventFilter(nesne, olay);
    }

  private:
    bool donecek_ = false; // it went for a while only
};

/// A click into a date chooses the part that it falls on: what is typed next takes its place. The toolkit
/// only sets its cursor into the digits, where no other digit finds room. Coming back by the keys begins with
/// the day, as coming forward does: a date is typed from its first digit.
class BolumSecen : public QObject {
  public:
    explicit BolumSecen(QDateEdit& kutu) : QObject(&kutu), kutu_(kutu) {
        kutu.installEventFilter(this);
        kutu.findChild<QLineEdit*>()->installEventFilter(this);
    }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (nesne != &kutu_ && olay->type() == QEvent::MouseButtonRelease)
            QMetaObject::invokeMethod(
                &kutu_, [this] { Sec(); }, Qt::QueuedConnection);
        if (nesne == &kutu_ && olay->type() == QEvent::FocusIn &&
            static_cast<QFocusEvent*>(olay)->reason() == Qt::BacktabFocusReason)
            QMetaObject::invokeMethod(
                &kutu_, [this] { kutu_.setSelectedSection(kutu_.sectionAt(0)); }, Qt::QueuedConnection);
        return QObject::eventFilter(nesne, olay);
    }

  private:
    void Sec() const {
        if (!kutu_.findChild<QLineEdit*>()->hasSelectedText())
            kutu_.setSelectedSection(kutu_.currentSection());
    }

    QDateEdit& kutu_;
};

QDate QGun(const Gun& gun) {
    return {static_cast<int>(gun.year()), static_cast<int>(static_cast<unsigned>(gun.month())),
            static_cast<int>(static_cast<unsigned>(gun.day()))};
}

/// The first and the last day that can be chosen.
using Sinirlar = std::pair<std::optional<Gun>, std::optional<Gun>>;

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
    if (model.yildizli)
        kutu.setEchoMode(QLineEdit::Password);
    TuslariSuz(kutu, model.maske.empty() ? model.suzgec : MaskeTusu);
    OdagiIzle(kutu, model, isler.odakGitti);
    const auto son = std::make_shared<SonHal>();
    connect(&kutu, &QLineEdit::textEdited, this, [this, &kutu, &model, isler, son] {
        Calistir([&] {
            model.metin = kutu.inputMask().isEmpty()
                              ? MetinYap(GirdiyiSuz(son->metin, Gelen(kutu, model, son->metin),
                                                    KutununKurali(model, false)))
                              : MaskeliMetin(kutu, model, son->gorunen);
            if (isler.degisti)
                isler.degisti();
        });
    });
    Izle([&kutu, &model, son] {
        const QSignalBlocker sus(&kutu);
        const QString metin = QMetin(model.metin);
        if (Gorunen(kutu) != metin && !son->Ayni(metin, Gorunen(kutu)))
            MetniKoy(kutu, metin);
        *son = {metin, Gorunen(kutu)};
        DurumunuVer(kutu, model);
    });
}

void Baglayici::Bagla(CokSatirKutusu& kutu, MetinKutusu& model, const AlanIsleri& isler) {
    kutu.setTabChangesFocus(true);
    TuslariSuz(kutu);
    OdagiIzle(kutu, model, isler.odakGitti);
    const auto son = std::make_shared<SonHal>();
    connect(&kutu, &QPlainTextEdit::textChanged, this, [this, &kutu, &model, isler, son] {
        const QString gorunen = kutu.Metni();
        if (gorunen == son->gorunen)
            return;
        Calistir([&] {
            model.metin = MetinYap(GirdiyiSuz(son->metin, gorunen, KutununKurali(model, true)));
            if (isler.degisti)
                isler.degisti();
        });
    });
    // A file may hold a text of a megabyte: one that nobody has changed isn't looked through again.
    Izle([&kutu, &model, son, bakilan = -1]() mutable {
        const QSignalBlocker sus(&kutu);
        DurumunuVer(kutu, model);
        if (kutu.document()->revision() == bakilan && QStringView(model.metin) == son->metin)
            return;
        const QString metin = QMetin(model.metin);
        const QString istenen = CokSatirGoster(metin);
        const QString gorunen = kutu.Metni();
        if (gorunen != istenen && !son->Ayni(metin, gorunen))
            kutu.MetniKoy(istenen);
        *son = {metin, kutu.Metni()};
        bakilan = kutu.document()->revision();
    });
}

void Baglayici::Bagla(QComboBox& kutu, MetinKutusu& model) {
    kutu.setEditable(true);
    kutu.lineEdit()->setAccessibleName(kutu.accessibleName());
    kutu.setInsertPolicy(QComboBox::NoInsert);
    kutu.setCompleter(nullptr);
    TekeriBagla(kutu);
    TuslariSuz(kutu); // its field gets the keys from it, past all filters of its own
    connect(&kutu, &QComboBox::activated, this, [this, &kutu, &model](int sira) {
        Calistir([&] { model.metin = MetinYap(kutu.itemText(sira)); });
    });
    // The arrow keys go on from the entry that the text is, and begin anew where it was emptied. To let go of
    // an entry empties the field, too, so while other text stands there that waits.
    Izle([&kutu, &model, konan = std::vector<Metin>()]() mutable {
        const QSignalBlocker sus(&kutu);
        if (konan != model.ogeler) {
            kutu.clear();
            for (const Metin& oge : model.ogeler)
                kutu.addItem(QMetin(oge));
            kutu.setCurrentIndex(-1);
            konan = model.ogeler;
        }
        const int sira = kutu.findText(QMetin(model.metin), Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (sira != kutu.currentIndex() && (sira >= 0 || model.metin.empty()))
            kutu.setCurrentIndex(sira);
    });
    Bagla(*kutu.lineEdit(), model);
}

void Baglayici::Bagla(QDateEdit& kutu, TarihSecici& model) {
    TekeriBagla(kutu);
    kutu.setCalendarPopup(true);
    kutu.setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    new BolumSecen(kutu);
    connect(&kutu, &QDateEdit::dateChanged, this, [this, &model](QDate gun) {
        Calistir([&model, gun] {
            model.Sec(Gun(std::chrono::year(gun.year()),
                          std::chrono::month(static_cast<unsigned>(gun.month())),
                          std::chrono::day(static_cast<unsigned>(gun.day()))));
        });
    });
    // A day or limits that are put anew begin the part anew that is being typed, and turn an open calendar
    // back.
    Izle([&kutu, &model, konan = Sinirlar()]() mutable {
        const QSignalBlocker sus(&kutu);
        if (const Sinirlar simdiki{model.enKucuk, model.enBuyuk}; konan != simdiki) {
            SinirlariKoy(kutu, model);
            konan = simdiki;
        }
        if (const QDate gun = QGun(model.deger); gun != kutu.date())
            kutu.setDate(gun);
    });
}

} // namespace velora
