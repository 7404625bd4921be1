#include "qt/Kutular.h"

#include <algorithm>

#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTreeView>

#include "qt/Ceviri.h"
#include "qt/GirdiSuzgeci.h"

namespace velora {

namespace {

constexpr int kGirdiEni = 360; // room for a name
constexpr QSize kDosyaKutusu(760, 480);
constexpr int kEnGenisYerler = 240; // of the column of places at its left

QMessageBox::Icon SimgeTuru(Simge simge) {
    switch (simge) {
    case Simge::Soru:
        return QMessageBox::Question;
    case Simge::Uyari:
        return QMessageBox::Warning;
    case Simge::Kritik:
        return QMessageBox::Critical;
    case Simge::Bilgi:
        break;
    }
    return QMessageBox::Information;
}

/// The line holds what a file can hold, as the fields of the windows do.
void GirdiyiDenetle(QLineEdit& satir) {
    TuslariSuz(satir);
    QObject::connect(&satir, &QLineEdit::textEdited, &satir,
                     [&satir, eski = satir.text()](const QString& yeni) mutable {
                         eski = GirdiyiSuz(eski, yeni, {});
                         if (eski != yeni)
                             MetniKoy(satir, eski);
                     });
}

std::filesystem::path DosyaYolu(const QString& yol) {
    return yol.toStdU16String();
}

/// When a file was changed, as the program writes days and times: the toolkit would write the system's.
class DegismeTarihi : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* bicim, const QModelIndex& yer) const override {
        QStyledItemDelegate::initStyleOption(bicim, yer);
        if (const auto* dosyalar = qobject_cast<const QFileSystemModel*>(yer.model()))
            bicim->text = dosyalar->lastModified(yer).toString(QStringLiteral("dd.MM.yyyy HH:mm"));
    }
};

/// The toolkit's own box on each system, in Turkish like all others.
class DosyaPenceresi : public QFileDialog {
  protected:
    DosyaPenceresi(QWidget* ust, const QString& baslik, const QString& klasor)
        : QFileDialog(ust, baslik, klasor) {
        setOption(QFileDialog::DontUseNativeDialog);
        resize(kDosyaKutusu);
    }

    /// The captions of the program's kind; the toolkit leaves two of them without their field.
    void Etiketle(const QString& ad, const QString& kabul) {
        const std::pair<DialogLabel, QString> yazilar[]{{LookIn, QStringLiteral("&Klasör:")},
                                                        {FileName, ad},
                                                        {FileType, QStringLiteral("Dosya &türü:")},
                                                        {Accept, kabul},
                                                        {Reject, QStringLiteral("İ&ptal")}};
        for (const auto& [etiket, yazi] : yazilar)
            setLabelText(etiket, yazi);
        for (const QString& kutu : {QStringLiteral("lookIn"), QStringLiteral("fileType")})
            findChild<QLabel*>(kutu + QStringLiteral("Label"))
                ->setBuddy(findChild<QComboBox*>(kutu + QStringLiteral("Combo")));
        SutunlariDuzenle();
        YerleriAc();
    }

  private:
    void SutunlariDuzenle() {
        constexpr int kAdSutunu = 0;
        constexpr int kBoySutunu = 1;
        constexpr int kTurSutunu = 2; // it would say "Folder" and "pdf File"
        constexpr int kTarihSutunu = 3;
        auto* liste = findChild<QTreeView*>(QStringLiteral("treeView"));
        liste->hideColumn(kTurSutunu);
        liste->header()->setSectionResizeMode(kAdSutunu, QHeaderView::Stretch);
        for (const int sutun : {kBoySutunu, kTarihSutunu})
            liste->header()->setSectionResizeMode(sutun, QHeaderView::ResizeToContents);
        // Of folders alone there is none.
        liste->setColumnHidden(kBoySutunu, testOption(ShowDirsOnly));
        liste->setItemDelegateForColumn(kTarihSutunu, new DegismeTarihi(liste));
    }

    /// The places at the left, whole: the toolkit would cut most of them off.
    void YerleriAc() {
        auto* yerler = findChild<QListView*>(QStringLiteral("sidebar"));
        const int en = yerler->sizeHintForColumn(0) + 2 * yerler->frameWidth();
        findChild<QSplitter*>(QStringLiteral("splitter"))
            ->setSizes({std::min(en, kEnGenisYerler), kDosyaKutusu.width() - en});
    }
};

class KlasorPenceresi : public DosyaPenceresi {
  public:
    KlasorPenceresi(QWidget* ust, const QString& baslik, const QString& klasor)
        : DosyaPenceresi(ust, baslik, klasor) {
        setFileMode(QFileDialog::Directory);
        setOption(QFileDialog::ShowDirsOnly);
        Etiketle(QStringLiteral("&Dizin:"), QStringLiteral("&Seç"));
        // Of one kind there is nothing to choose.
        for (const char* ad : {"fileTypeLabel", "fileTypeCombo"})
            findChild<QWidget*>(QString::fromLatin1(ad))->hide();
    }
};

class KayitYeriPenceresi : public DosyaPenceresi {
  public:
    KayitYeriPenceresi(QWidget* ust, const KayitYeriKutusu& kutu, const QString& klasor)
        : DosyaPenceresi(ust, QMetin(kutu.baslik), klasor), uzanti_(QMetin(kutu.uzanti)) {
        setAcceptMode(QFileDialog::AcceptSave);
        setFileMode(QFileDialog::AnyFile);
        setNameFilter(QMetin(kutu.tur) + QStringLiteral(" (*") + uzanti_ + u')');
        Etiketle(QStringLiteral("&Dosya adı:"), QStringLiteral("Kay&det"));
        selectFile(QMetin(kutu.ad));
    }

    /// The ending first, then what the box asks about the name. It would give a name with a dot in it, as in
    /// a date, no ending of its own.
    void accept() override {
        auto* satir = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        std::error_code hata;
        if (!satir->text().isEmpty() && !satir->text().endsWith(uzanti_, Qt::CaseInsensitive) &&
            !std::filesystem::is_directory(DosyaYolu(selectedFiles().value(0)), hata))
            satir->setText(satir->text() + uzanti_);
        QFileDialog::accept();
    }

  private:
    QString uzanti_;
};

} // namespace

Cevap MesajGoster(QWidget* ust, const MesajKutusu& kutu) {
    QMessageBox pencere(ust);
    pencere.setWindowTitle(QMetin(kutu.baslik));
    pencere.setTextFormat(Qt::PlainText);
    pencere.setText(QMetin(kutu.metin));
    pencere.setIcon(SimgeTuru(kutu.simge));
    const bool soru = kutu.dugmeler == KutuDugmeleri::EvetHayir;
    QPushButton* olumlu = pencere.addButton(soru ? QStringLiteral("&Evet") : QStringLiteral("&Tamam"),
                                            soru ? QMessageBox::YesRole : QMessageBox::AcceptRole);
    pencere.setDefaultButton(olumlu);
    if (soru) {
        QPushButton* olumsuz = pencere.addButton(QStringLiteral("&Hayır"), QMessageBox::NoRole);
        pencere.setEscapeButton(olumsuz);
        if (kutu.baslangic == Cevap::Hayir)
            pencere.setDefaultButton(olumsuz);
    }
    pencere.exec();
    if (!soru)
        return Cevap::Tamam;
    return pencere.clickedButton() == olumlu ? Cevap::Evet : Cevap::Hayir;
}

Metin GirdiAl(QWidget* ust, const GirdiKutusu& kutu) {
    QInputDialog pencere(ust);
    pencere.setInputMode(QInputDialog::TextInput);
    pencere.setWindowTitle(QMetin(kutu.baslik));
    pencere.setLabelText(QMetin(kutu.metin));
    pencere.setTextValue(QMetin(kutu.baslangic));
    pencere.setOkButtonText(QStringLiteral("&Tamam"));
    pencere.setCancelButtonText(QStringLiteral("İ&ptal"));
    auto* satir = pencere.findChild<QLineEdit*>();
    GirdiyiDenetle(*satir);
    // The dialog takes its own smallest size from what stands in it.
    satir->setMinimumWidth(kGirdiEni);
    // Of the line itself: the box is still told of the text as it was before it was made to fit.
    return pencere.exec() == QInputDialog::Accepted ? MetinYap(satir->text()) : Metin();
}

std::optional<std::filesystem::path> KayitYeriSor(QWidget* ust, const KayitYeriKutusu& kutu,
                                                  const QString& klasor) {
    KayitYeriPenceresi pencere(ust, kutu, klasor);
    if (pencere.exec() != QFileDialog::Accepted)
        return std::nullopt;
    return DosyaYolu(pencere.selectedFiles().value(0));
}

QString KlasorSor(QWidget* ust, const QString& baslik, const QString& klasor) {
    KlasorPenceresi pencere(ust, baslik, klasor);
    return pencere.exec() == QFileDialog::Accepted ? pencere.selectedFiles().value(0) : QString();
}

} // namespace velora
