#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>

#include "qt/Koruma.h"
#include "screen/Kontroller.h"

class QAbstractButton;
class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QTreeWidget;

namespace velora {

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

    Baglayici(std::weak_ptr<const void> ekran, QObject* pencere);
    ~Baglayici() override;
    Baglayici(const Baglayici&) = delete;
    Baglayici& operator=(const Baglayici&) = delete;

    void Bagla(QCheckBox& kutu, OnayKutusu& model);
    /// `degisti` runs after each change by the user.
    void Bagla(QLineEdit& kutu, MetinKutusu& model, const Isleyici& degisti = {});
    void Bagla(QAbstractButton& dugme, Dugme& model, const Isleyici& tiklandi);
    /// A list that hasn't the focus passes the wheel on: it turns what lies under the pointer, not a choice.
    void Bagla(QComboBox& kutu, AcilirListe& model);
    void Bagla(QAction& girdi, MenuGirdisi& model, const Isleyici& tiklandi);
    /// `secildi` runs when the user marks another row, `ciftTiklandi` on a double click.
    void Bagla(QTreeWidget& liste, ListeGorunumu& model, const Isleyici& secildi = {},
               const Isleyici& ciftTiklandi = {});
    void Bagla(QLabel& etiket, Etiket& model);
    /// A timer that runs as long as the model's interval isn't 0. One that runs is started again only by
    /// another interval. `ad` is its name among the children of the binder.
    void Bagla(Zamanlayici& model, const QString& ad);

    /// For all else that follows the models: runs whenever the widgets take what the models hold.
    void Izle(Isleyici tazele);

    /// Runs a handler: under the guard, with the screen kept alive, and all widgets refreshed afterwards.
    void Calistir(const Isleyici& isleyici);

    /// All widgets of all windows take what their models hold.
    static void HepsiniTazele();

    /// True while a handler runs that began only a moment ago. What is costly to show, and would only flash,
    /// waits for its end.
    static bool KisaIsSuruyor();

    /// Refreshes all widgets and takes the running handler for a long one from here on: it waits for the user.
    static void KullaniciBekleniyor();

  protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;

  private:
    void Tazele();

    std::weak_ptr<const void> ekran_;
    std::vector<Isleyici> tazeleyenler_;
};

} // namespace velora
