#pragma once

#include <QMainWindow>

class QComboBox;
class QHBoxLayout;
class QTimer;

namespace velora {

class Baglayici;
class TabloGorunumu;
struct FormTablo;
struct Program;

/// The window of the main screen: the drop-downs over the year table, the table, the status bar under it.
class TabloPenceresi : public QMainWindow {
  public:
    explicit TabloPenceresi(Program& program);

    const TabloGorunumu& Gorunum() const { return *gorunum_; }

  protected:
    void closeEvent(QCloseEvent* olay) override;
    bool eventFilter(QObject* nesne, QEvent* olay) override;

  private:
    void BosYeriIzle(QWidget& parca);
    QWidget* UstSerit(FormTablo& tablo);
    void AracSeridiKur();
    void DurumSeridiKur(FormTablo& tablo);
    void ZamanlayicilariBagla(FormTablo& tablo);
    void SaatiGoster();

    Program& program_;
    Baglayici* baglayici_;
    TabloGorunumu* gorunum_ = nullptr;
    QTimer* saat_ = nullptr; // due when the next minute begins
};

} // namespace velora
