#pragma once

#include <memory>
#include <tuple>

#include <QPushButton>

#include "qt/EkranPenceresi.h"
#include "qt/documents/SayfaGorunumu.h"
#include "screen/Program.h"

namespace velora {

struct FormMakbuzPrint;
struct FormTabloPrint;

/// The window of a screen that is one printed thing: its pages as they come onto paper, and under them the
/// buttons that print it, save it and cancel.
template <class Ekran>
class BaskiPenceresi : public EkranPenceresi<Ekran> {
  protected:
    BaskiPenceresi(const std::shared_ptr<Ekran>& ekran, const YaziOlcer& olcer, QSize boy)
        : EkranPenceresi<Ekran>(ekran) {
        auto* sutun = SutunKur(*this);
        auto* sayfa = new SayfaGorunumu(this);
        sayfa->setObjectName(QStringLiteral("Sayfa"));
        sutun->addWidget(sayfa, 1);
        auto* yazdir = this->DugmeYap({"Command1", &Ekran::Command1, &Ekran::Command1_Click});
        auto* pdf = this->DugmeYap({"Pdf", &Ekran::Pdf, &Ekran::Pdf_Click});
        auto* iptal = this->DugmeYap({"Command2", &Ekran::Command2, &Ekran::Command2_Click});
        yazdir->setDefault(true);
        this->IptalDugmesi(iptal);
        sutun->addLayout(DugmeSeridi({yazdir, pdf, iptal}));
        Izle(*sayfa, olcer);
        this->resize(boy);
        this->IlkOdak("Command1");
    }

  private:
    /// A page is built only when something that stands on it is another.
    void Izle(SayfaGorunumu& sayfa, const YaziOlcer& olcer) {
        using Gorunen = decltype(this->Model().Gorunen());
        this->Bag().Izle(
            [&sayfa, &ekran = this->Model(), olcer, gorunen = std::shared_ptr<Gorunen>()]() mutable {
                if (gorunen != nullptr && *gorunen == ekran.Gorunen())
                    return;
                gorunen = std::make_shared<Gorunen>(ekran.Gorunen());
                sayfa.Goster(ekran.Sayfalar(olcer));
            });
    }
};

/// The window of `FormMakbuzPrint`.
class MakbuzPenceresi : public BaskiPenceresi<FormMakbuzPrint> {
  public:
    explicit MakbuzPenceresi(Program& program);
};

/// The window of `FormTabloPrint`.
class TabloPrintPenceresi : public BaskiPenceresi<FormTabloPrint> {
  public:
    explicit TabloPrintPenceresi(Program& program);
};

} // namespace velora
