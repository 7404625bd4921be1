#pragma once

#include "qt/Diyalog.h"

namespace velora {

/// The window of one screen, under its title. What is made here from a control of the screen is bound to it.
/// The window doesn't keep its screen: after it was built it gets to it only through its binder, which knows
/// whether the screen still stands.
template <class Ekran>
class EkranPenceresi : public Diyalog {
  protected:
    using Olay = void (Ekran::*)(); ///< a handler of the screen

    /// What a button is made from.
    struct DugmeTanimi {
        const char* ad;
        Dugme Ekran::*dugme;
        Olay tiklandi;
    };

    explicit EkranPenceresi(const std::shared_ptr<Ekran>& ekran) : Diyalog(ekran), ekran_(*ekran) {
        Bag().Izle([this] { setWindowTitle(QMetin(ekran_.baslik)); });
    }

    Ekran& Model() const { return ekran_; }

    /// A handler for what is bound to it; null for none.
    Baglayici::Isleyici Isle(Olay olay) const {
        if (olay == nullptr)
            return {};
        return [&ekran = ekran_, olay] { (ekran.*olay)(); };
    }

    /// The list of the screen, its columns in these widths (`SutunEnleriVer`); what runs when a row is
    /// marked, and at a double click.
    QTreeWidget* ListeYap(std::span<const int> enler, Olay secildi, Olay ciftTiklandi = nullptr) {
        return Diyalog::ListeYap(ekran_.Liste, enler, Isle(secildi), Isle(ciftTiklandi));
    }

    /// A button under the name of its control.
    QPushButton* DugmeYap(const DugmeTanimi& tanim) {
        return Diyalog::DugmeYap(tanim.ad, ekran_.*tanim.dugme, Isle(tanim.tiklandi));
    }

    /// The row of a dialog that confirms or cancels: Enter presses the first, Esc the second. Other buttons
    /// stand at its left end.
    QHBoxLayout* TamamIptal(const DugmeTanimi& tamam, const DugmeTanimi& iptal,
                            std::initializer_list<QPushButton*> soldakiler = {}) {
        auto* tamamDugmesi = DugmeYap(tamam);
        auto* iptalDugmesi = DugmeYap(iptal);
        tamamDugmesi->setDefault(true);
        IptalDugmesi(iptalDugmesi);
        return DugmeSeridi({tamamDugmesi, iptalDugmesi}, soldakiler);
    }

    /// The buttons of a screen that keeps a list: "Ekle" and "Sil", which are 1 and 2, "Düzenle", and
    /// "Kapat", which also cancels. Enter adds, and on a marked row it edits.
    QHBoxLayout*
    ListeDugmeleri(QWidget& liste,
                   const DugmeTanimi& duzenleme = {"Command4", &Ekran::Command4, &Ekran::Command4_Click},
                   const DugmeTanimi& kapatma = {"Command3", &Ekran::Command3, &Ekran::Command3_Click}) {
        auto* ekle = DugmeYap({"Command1", &Ekran::Command1, &Ekran::Command1_Click});
        auto* duzenle = DugmeYap(duzenleme);
        auto* sil = DugmeYap({"Command2", &Ekran::Command2, &Ekran::Command2_Click});
        auto* kapat = DugmeYap(kapatma);
        VarsayilanDugme(*ekle, liste, *duzenle);
        IptalDugmesi(kapat);
        for (QPushButton* dugme : {duzenle, sil})
            OdagiListeyeVer(*dugme, liste);
        return DugmeSeridi({ekle, duzenle, sil, kapat});
    }

  private:
    Ekran& ekran_;
};

} // namespace velora
