#include "qt/setup/RenkPenceresi.h"

#include <array>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"
#include "setup/FormRenk.h"

namespace velora {

namespace {

constexpr int kRenkEni = 360; // one column for each hue
constexpr int kGriEni = 24;   // and a strip of greys beside them
constexpr int kBoy = 240;
constexpr RenkDegeri kDisarisi = -1;
constexpr int kOrnekBoyu = 32;
constexpr int kDegerEni = 96;

/// From white at the top over the full colour in the middle to black at the bottom.
QColor CizelgeRengi(int x, int y) {
    const double oran = static_cast<double>(y) / (kBoy - 1);
    if (x >= kRenkEni)
        return QColor::fromRgbF(static_cast<float>(1 - oran), static_cast<float>(1 - oran),
                                static_cast<float>(1 - oran));
    const double doygunluk = std::min(1.0, 2 * oran);
    const double parlaklik = std::min(1.0, 2 * (1 - oran));
    return QColor::fromHsvF(static_cast<float>(x) / kRenkEni, static_cast<float>(doygunluk),
                            static_cast<float>(parlaklik));
}

QImage CizelgeYap() {
    QImage resim(kRenkEni + kGriEni, kBoy, QImage::Format_RGB32);
    for (int y = 0; y < resim.height(); ++y)
        for (int x = 0; x < resim.width(); ++x)
            resim.setPixelColor(x, y, CizelgeRengi(x, y));
    return resim;
}

/// The chart that colours are picked from.
class Cizelge : public QWidget {
  public:
    Cizelge(Baglayici& baglayici, FormRenk& ekran)
        : baglayici_(baglayici), ekran_(ekran), resim_(CizelgeYap()) {
        setFixedSize(resim_.size());
        setCursor(Qt::CrossCursor);
    }

  protected:
    void paintEvent(QPaintEvent* /*olay*/) override { QPainter(this).drawImage(0, 0, resim_); }
    void mousePressEvent(QMouseEvent* olay) override {
        baglayici_.Calistir([this, olay] { ekran_.Picture1_MouseDown(Renk(*olay)); });
    }
    void mouseMoveEvent(QMouseEvent* olay) override {
        baglayici_.Calistir([this, olay] { ekran_.Picture1_MouseMove(Renk(*olay)); });
    }
    void mouseReleaseEvent(QMouseEvent* /*olay*/) override {
        baglayici_.Calistir([this] { ekran_.Picture1_MouseUp(); });
    }

  private:
    RenkDegeri Renk(const QMouseEvent& olay) const {
        const QPoint yer = olay.position().toPoint();
        if (!resim_.valid(yer))
            return kDisarisi;
        const QColor renk = resim_.pixelColor(yer);
        return renk.red() | renk.green() << 8 | renk.blue() << 16;
    }

    Baglayici& baglayici_;
    FormRenk& ekran_;
    QImage resim_;
};

} // namespace

QFormLayout* RenkPenceresi::Degerler() {
    QFormLayout* form = FormKur();
    QLabel* ornek = DegerYap(QStringLiteral("picColorBox"), Model().picColorBox);
    ornek->setFixedHeight(kOrnekBoyu);
    ornek->setFrameShape(QFrame::StyledPanel); // seen also when it is as light as the window
    form->addRow(ornek);
    const std::array alanlar{
        std::pair{"txtRed", &Model().txtRed},   std::pair{"txtGreen", &Model().txtGreen},
        std::pair{"txtBlue", &Model().txtBlue}, std::pair{"txtWeb", &Model().txtWeb},
        std::pair{"txtHex", &Model().txtHex},
    };
    const Baglayici::AlanIsleri isler{.degisti = Isle(&FormRenk::Bilesen_Change), .odakGitti = {}};
    for (const auto& [ad, model] : alanlar)
        SatirEkle<QLineEdit>(*form, QString::fromLatin1(ad), *model, isler)->setFixedWidth(kDegerEni);
    // The last one stands without its caption.
    auto* ters = ParcaYap<QLineEdit>(QStringLiteral("txtTers"), Model().txtTers);
    ters->setFixedWidth(kDegerEni);
    form->addRow(QString(), ters);
    return form;
}

RenkPenceresi::RenkPenceresi(Program& program) : EkranPenceresi(program.FormRenk.Tut()) {
    auto* sutun = SutunKur(*this);
    auto* ust = new QHBoxLayout;
    ust->setSpacing(2 * kAralik);
    auto* cizelge = new Cizelge(Bag(), Model());
    Adlandir(*cizelge, QStringLiteral("Picture1"), QMetin(Model().cizelgeBaslik));
    ust->addWidget(cizelge);
    ust->addLayout(Degerler());
    sutun->addLayout(ust);
    sutun->addLayout(TamamIptal({"Command1", &FormRenk::Command1, &FormRenk::Command1_Click},
                                {"Command2", &FormRenk::Command2, &FormRenk::Command2_Click}));
    sutun->setSizeConstraint(QLayout::SetFixedSize); // as the chart
    IlkOdak("txtRed");
}

} // namespace velora
