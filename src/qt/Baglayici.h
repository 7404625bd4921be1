#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QObject>

#include "qt/Koruma.h"
#include "screen/Kontroller.h"

class QAbstractButton;
class QAction;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QRadioButton;
class QTreeWidget;
class QWidget;

namespace velora {

class CokSatirKutusu;

/// Connects the widgets of one window with the control models of one screen.
///
/// What the user does goes from the widget into the model and on to the screen's handler. After each handler,
/// and before pending events run inside one, the widgets of all windows take what their models hold. Such a
/// write never raises a handler.
///
/// The screen may be unloaded at any time: its binder then does nothing any more. While a handler runs, the
/// screen is kept alive. Widgets and controls bound here must live as long as the window and the screen.
class Baglayici : public QObject {
  public:
    using Isleyici = std::function<void()>;

    /// What a text field tells its screen.
    struct AlanIsleri {
        Isleyici degisti; ///< after each change by the user
        Isleyici odakGitti;
    };

    Baglayici(std::weak_ptr<const void> ekran, QObject* pencere);
    ~Baglayici() override;
    Baglayici(const Baglayici&) = delete;
    Baglayici& operator=(const Baglayici&) = delete;

    void Bagla(QCheckBox& kutu, OnayKutusu& model);
    /// A field of one line, with the model's mask if it has one. What the user types or pastes goes through
    /// `GirdiyiSuz`; a text set by code stands whole.
    void Bagla(QLineEdit& kutu, MetinKutusu& model, const AlanIsleri& isler = {});
    /// A field of many lines. The model's line ends are CR LF.
    void Bagla(CokSatirKutusu& kutu, MetinKutusu& model, const AlanIsleri& isler = {});
    /// An editable list.
    void Bagla(QComboBox& kutu, MetinKutusu& model);
    /// A date, with its calendar. A day outside the model's limits can be neither typed nor chosen.
    void Bagla(QDateEdit& kutu, TarihSecici& model);
    /// A tick box whose handler also wants to know that the mouse was let go on it.
    void Bagla(QCheckBox& kutu, OnayKutusu& model, const Isleyici& birakildi);
    /// One of several exclusive choices.
    void Bagla(QRadioButton& dugme, OnayKutusu& model);
    /// The button takes the focus before its handler runs, also when Enter or an access key pressed it: the
    /// field that was left comes first.
    void Bagla(QAbstractButton& dugme, Dugme& model, const Isleyici& tiklandi);
    /// A list that hasn't the focus passes the wheel on: it turns what lies under the pointer, not a choice.
    void Bagla(QComboBox& kutu, AcilirListe& model);
    void Bagla(QAction& girdi, MenuGirdisi& model, const Isleyici& tiklandi);
    /// `secildi` runs when the user marks a row, also on a press on the one that is marked already; a press
    /// on another row runs it twice. `ciftTiklandi` runs on a double click. Only the model takes a mark away.
    /// A click on a head sorts what is seen, or the model where that has a handler for it; marks are of the
    /// model's rows all the same. Where the window
    /// lets several rows be chosen, the mark is the last one that was reached.
    void Bagla(QTreeWidget& liste, ListeGorunumu& model, const Isleyici& secildi = {},
               const Isleyici& ciftTiklandi = {});
    /// A plain list; `secildi` as above.
    void Bagla(QListWidget& liste, ListeKutusu& model, const Isleyici& secildi = {});
    void Bagla(QLabel& etiket, Etiket& model);
    /// Tells the steps that are done and how many there are; with none it stands empty and still.
    void Bagla(QProgressBar& cubuk, IlerlemeCubugu& model);
    /// A timer that runs as long as the model's interval isn't 0. One that runs is started again only by
    /// another interval; a tick that would come in the middle of another handler is left out where the model
    /// wants that. `ad` is its name among the children of the binder.
    void Bagla(Zamanlayici& model, const QString& ad);

    /// For all else that follows the models: runs whenever the widgets take what the models hold.
    void Izle(Isleyici tazele);

    /// Runs a handler: under the guard, with the screen kept alive, and all widgets refreshed afterwards.
    void Calistir(const Isleyici& isleyici);
    /// The same for what the user presses. While such a handler of this window runs, no other one does: a
    /// press that comes in the middle of it is dropped, but for one that is meant to come there.
    void Bas(const Isleyici& isleyici, bool aradaDa = false);

    /// False once the screen is unloaded or the window dropped. What a window does behind a handler asks
    /// first.
    bool Duruyor() const;

    /// Deletes a window as soon as none of its handlers runs any more.
    static void Sil(QWidget& pencere);

    /// All widgets of all windows take what their models hold. One that takes long draws breath: where no
    /// handler runs that does, by itself.
    static void HepsiniTazele();

    /// True while a handler runs and doesn't wait for the user. What is costly to show, and would only flash,
    /// waits for its end.
    static bool IsSuruyor();
    /// Of an event of focus: it goes to, or comes from, a menu or another window, and the field keeps its
    /// place in its own.
    static bool OdakDonecek(const QEvent& olay);

    /// While it stands the running handler waits for the user: the widgets show what it has done so far. A
    /// handler that runs meanwhile, in the window or the box that is waited for, is one of its own.
    class KullaniciBekleme {
      public:
        KullaniciBekleme();
        ~KullaniciBekleme();
        KullaniciBekleme(const KullaniciBekleme&) = delete;
        KullaniciBekleme& operator=(const KullaniciBekleme&) = delete;

      private:
        bool onceki_; // the handler waited already
    };

  protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

  private:
    void Tazele();
    void TekeriBagla(QWidget& parca);
    void Ertele(Isleyici is);
    static void ErtelenenleriCalistir();
    void AlandanCikildi(const Isleyici& isleyici);
    void OdagiIzle(QWidget& parca, const MetinKutusu& model, const Isleyici& odakGitti);

    std::weak_ptr<const void> ekran_;
    int derinlik_ = 0;       // its handlers that run, one inside the other
    bool basildi_ = false;   // one of them was pressed by the user
    bool birakildi_ = false; // the window is to be deleted
    std::vector<Isleyici> tazeleyenler_;
    std::unordered_map<const QObject*, Isleyici> odaklananlar_; // what runs when a field is left
};

} // namespace velora
