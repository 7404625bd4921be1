#pragma once

#include <functional>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include "qt/QtOrtam.h"

namespace velora::olcum {

inline constexpr int kSabir = 10'000; // milliseconds

/// Notices what has been painted: the last window, or, of one widget, whether it was.
class BoyaGozcusu : public QObject {
  public:
    explicit BoyaGozcusu(const QWidget* parca = nullptr) : parca_(parca) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() != QEvent::Paint || !nesne->isWidgetType())
            return false;
        pencere_ = static_cast<QWidget*>(nesne)->window();
        boyandi_ = boyandi_ || nesne == parca_;
        return false;
    }
    bool Boyandi(const QWidget* pencere) const { return pencere != nullptr && pencere_ == pencere; }
    bool Boyandi() const { return boyandi_; }

  private:
    const QWidget* parca_;
    const QWidget* pencere_ = nullptr;
    bool boyandi_ = false;
};

/// Runs what shows that window, which may paint it by and by, and lets events run until it has the keyboard
/// and is painted.
inline bool HazirOlmali(const QtOrtam& disDunya, EkranAdi ekran, const std::function<void()>& is) {
    const BoyaGozcusu gozcu;
    QElapsedTimer sure;
    sure.start();
    is();
    while (sure.elapsed() < kSabir) {
        QCoreApplication::processEvents();
        const QWidget* pencere = disDunya.Pencere(ekran);
        if (gozcu.Boyandi(pencere) && pencere->isActiveWindow())
            return true;
    }
    return false;
}

} // namespace velora::olcum
