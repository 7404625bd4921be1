#include "qt/TusTekrari.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

namespace velora {

namespace {

class TekrarSuzgeci : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* nesne, QEvent* olay) override {
        if (olay->type() != QEvent::KeyPress)
            return QObject::eventFilter(nesne, olay);
        const auto& tus = static_cast<const QKeyEvent&>(*olay);
        const bool enter = tus.key() == Qt::Key_Return || tus.key() == Qt::Key_Enter;
        return tus.isAutoRepeat() &&
               ((enter && nesne->isWidgetType() && !CokSatirli(*nesne)) || tus.key() == Qt::Key_Escape);
    }

  private:
    static bool CokSatirli(const QObject& alan) {
        return qobject_cast<const QPlainTextEdit*>(&alan) != nullptr;
    }
};

} // namespace

void TusTekrariniKes() {
    QCoreApplication* uygulama = QCoreApplication::instance();
    uygulama->installEventFilter(new TekrarSuzgeci(uygulama));
}

} // namespace velora
