#pragma once

#include <functional>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include "qt/QtOrtam.h"

namespace velora::olcum {

inline constexpr int kSabir = 10'000; // milliseconds

/// Notices the windows that have been painted.
class BoyaGozcusu : public QObject {
  public:
    BoyaGozcusu() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() == QEvent::Paint && nesne->isWidgetType())
            boyanan_ = static_cast<QWidget*>(nesne)->window();
        return false;
    }
    bool Boyandi(const QWidget* pencere) const { return pencere != nullptr && boyanan_ == pencere; }

  private:
    const QWidget* boyanan_ = nullptr;
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
