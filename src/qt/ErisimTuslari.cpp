#include "qt/ErisimTuslari.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QStackedWidget>
#include <QTabWidget>

#include "qt/Ceviri.h"

namespace velora {

namespace {

constexpr QChar kNoktaliBuyukI = u'İ'; // its key brings "i" and never this sign

// Saves in every window that saves, and does nothing in the others: a hand that is used to it throws nothing
// away.
constexpr QChar kKaydetTusu = u'K';
constexpr QStringView kKaydet = u"Kaydet";

/// Who chooses its key first. What can be reached by another key all the same takes what is left.
enum class Oncelik { Varsayilan, Digerleri, Iptal, Yedek };

/// A caption on the display.
struct Baslik {
    QString metin;
    std::function<void(const QString&)> koy;
    QWidget* sayfa; // the page that it is seen on, null for every page
    Oncelik oncelik = Oncelik::Digerleri;
};

using Tuslar = QSet<QChar>;

/// The key that brings a letter; "ı" and "i" can't be told apart.
QChar Tus(QChar harf) {
    return harf.toUpper();
}

QChar VarolanTus(const QString& metin) {
    const qsizetype yer = metin.indexOf(u'&');
    return yer < 0 || yer + 1 == metin.size() ? QChar() : Tus(metin[yer + 1]);
}

QWidget* Sayfasi(QWidget* parca) {
    for (; parca != nullptr; parca = parca->parentWidget())
        if (qobject_cast<QStackedWidget*>(parca->parentWidget()) != nullptr)
            return parca;
    return nullptr;
}

void SekmeleriEkle(std::vector<Baslik>& basliklar, QTabWidget& sayfalar) {
    for (int i = 0; i < sayfalar.count(); ++i)
        basliklar.push_back({sayfalar.tabText(i),
                             [&sayfalar, i](const QString& metin) { sayfalar.setTabText(i, metin); },
                             Sayfasi(&sayfalar)});
}

/// Whether a label names a field that can be typed into or pressed.
bool AlanAdi(const QLabel& etiket) {
    return etiket.buddy() != nullptr && etiket.buddy()->focusPolicy() != Qt::NoFocus;
}

/// A button that turns to the page of that name.
bool SayfaAcar(const QAbstractButton& dugme) {
    for (const auto* sayfalar : dugme.window()->findChildren<QTabWidget*>())
        for (int i = 0; i < sayfalar->count(); ++i)
            if (sayfalar->tabText(i).remove(u'&') == dugme.text().remove(u'&'))
                return true;
    return false;
}

/// Of some exclusive choices any but the first: the arrow keys lead on from that one.
bool SonrakiSecenek(const QAbstractButton& dugme) {
    return qobject_cast<const QRadioButton*>(&dugme) != nullptr &&
           dugme.parentWidget()->findChild<QRadioButton*>({}, Qt::FindDirectChildrenOnly) != &dugme;
}

Oncelik DugmeninOnceligi(const QAbstractButton& dugme, const QAbstractButton* iptal) {
    const auto* basmali = qobject_cast<const QPushButton*>(&dugme);
    if (basmali != nullptr && basmali->isDefault())
        return Oncelik::Varsayilan;
    if (SayfaAcar(dugme) || SonrakiSecenek(dugme))
        return Oncelik::Yedek;
    return &dugme == iptal ? Oncelik::Iptal : Oncelik::Digerleri;
}

/// All captions of a window.
std::vector<Baslik> Basliklar(const QWidget& pencere, const QAbstractButton* iptal) {
    std::vector<Baslik> basliklar;
    for (QWidget* parca : pencere.findChildren<QWidget*>()) {
        if (parca->window() != &pencere)
            continue;
        if (auto* dugme = qobject_cast<QAbstractButton*>(parca); dugme != nullptr && !dugme->text().isEmpty())
            basliklar.push_back({dugme->text(), [dugme](const QString& metin) { dugme->setText(metin); },
                                 Sayfasi(parca), DugmeninOnceligi(*dugme, iptal)});
        else if (auto* etiket = qobject_cast<QLabel*>(parca); etiket != nullptr && AlanAdi(*etiket))
            basliklar.push_back(
                {etiket->text(), [etiket](const QString& metin) { etiket->setText(metin); }, Sayfasi(parca)});
        else if (auto* sayfalar = qobject_cast<QTabWidget*>(parca); sayfalar != nullptr)
            SekmeleriEkle(basliklar, *sayfalar);
    }
    return basliklar;
}

/// Places of a caption that its mark may stand before, the best first: the letters that begin a word.
std::vector<qsizetype> Adaylar(const QString& metin, const Tuslar& dolu) {
    std::vector<qsizetype> yerler;
    for (const bool basta : {true, false})
        for (qsizetype i = 0; i < metin.size(); ++i)
            if (metin[i].isLetter() && metin[i] != kNoktaliBuyukI && !dolu.contains(Tus(metin[i])) &&
                (Tus(metin[i]) != kKaydetTusu || metin == kKaydet) &&
                basta == (i == 0 || !metin[i - 1].isLetter()))
                yerler.push_back(i);
    return yerler;
}

/// Gives out keys so that as many captions as can be have one: a caption that finds none free takes the key
/// of one that can do with another.
class Dagitim {
  public:
    Dagitim(std::vector<Baslik*> basliklar, const Tuslar& dolu) : basliklar_(std::move(basliklar)) {
        for (const Baslik* baslik : basliklar_)
            adaylar_.push_back(Adaylar(baslik->metin, dolu));
        for (std::size_t i = 0; i < basliklar_.size(); ++i) {
            denenen_.clear();
            YerBul(i);
        }
    }

    void Koy() const {
        for (const auto& [tus, secim] : secimler_) {
            Baslik& baslik = *basliklar_[secim.baslik];
            baslik.metin.insert(secim.yer, u'&');
            baslik.koy(baslik.metin);
        }
    }

  private:
    struct Secim {
        std::size_t baslik;
        qsizetype yer;
    };

    bool YerBul(std::size_t i) {
        for (const bool bosken : {true, false})
            for (const qsizetype yer : adaylar_[i]) {
                const QChar tus = Tus(basliklar_[i]->metin[yer]);
                const auto eski = secimler_.find(tus);
                const bool bos = eski == secimler_.end();
                if (bos != bosken || (!bos && (denenen_.contains(tus) || !Birakir(tus, eski->second.baslik))))
                    continue;
                secimler_[tus] = {i, yer};
                return true;
            }
        return false;
    }

    bool Birakir(QChar tus, std::size_t sahibi) {
        denenen_.insert(tus);
        return YerBul(sahibi);
    }

    std::vector<Baslik*> basliklar_;
    std::vector<std::vector<qsizetype>> adaylar_;
    std::map<QChar, Secim> secimler_; // by key
    Tuslar denenen_;                  // keys that the caption at hand can't get from their owners
};

/// The captions of one page that have no mark yet get one, first the default button's, then the others'; no
/// page: those that are seen with every page. What cancels chooses last, but doesn't go without.
void SayfayaVer(std::vector<Baslik>& basliklar, const QWidget* sayfa, bool varsayilanlar) {
    std::vector<Baslik*> isaretsizler;
    Tuslar dolu;
    for (Baslik& baslik : basliklar) {
        const bool birlikte = sayfa == nullptr || baslik.sayfa == nullptr || baslik.sayfa == sayfa;
        if (const QChar tus = VarolanTus(baslik.metin); !tus.isNull() && birlikte)
            dolu.insert(tus);
        if (baslik.sayfa == sayfa && (baslik.oncelik == Oncelik::Varsayilan) == varsayilanlar &&
            !baslik.metin.contains(u'&'))
            isaretsizler.push_back(&baslik);
    }
    std::ranges::stable_sort(isaretsizler, {}, &Baslik::oncelik);
    if (!isaretsizler.empty())
        Dagitim(std::move(isaretsizler), dolu).Koy();
}

} // namespace

void ErisimTuslariVer(QWidget& pencere, const QAbstractButton* iptal) {
    std::vector<Baslik> basliklar = Basliklar(pencere, iptal);
    std::set<QWidget*> sayfalar{nullptr}; // that are seen with every page come first
    for (const Baslik& baslik : basliklar)
        sayfalar.insert(baslik.sayfa);
    for (const QWidget* sayfa : sayfalar)
        for (const bool varsayilanlar : {true, false})
            SayfayaVer(basliklar, sayfa, varsayilanlar);
}

void ErisimTuslariVer(QMenu& menu) {
    std::vector<Baslik> girdiler;
    for (QAction* girdi : menu.actions())
        if (!girdi->isSeparator())
            girdiler.push_back(
                {girdi->text(), [girdi](const QString& metin) { girdi->setText(metin); }, nullptr});
    SayfayaVer(girdiler, nullptr, false);
}

QString TusIsaretli(MetinBakis baslik, QChar tus) {
    QString metin = QMetin(baslik);
    return metin.insert(metin.indexOf(tus), u'&');
}

} // namespace velora
