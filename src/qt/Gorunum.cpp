#include "qt/Gorunum.h"

#include <QWidget>

#include <array>
#include <utility>

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace velora {

namespace {

constexpr QRgb kVurgu = qRgb(0, 128, 0);

constexpr std::array<std::pair<QPalette::ColorRole, QRgb>, 18> kRenkler{{
    {QPalette::Window, qRgb(243, 244, 245)},
    {QPalette::WindowText, qRgb(32, 33, 36)},
    {QPalette::Base, qRgb(255, 255, 255)},
    {QPalette::AlternateBase, qRgb(246, 248, 246)},
    {QPalette::Text, qRgb(32, 33, 36)},
    {QPalette::PlaceholderText, qRgb(120, 124, 128)},
    {QPalette::Button, qRgb(238, 239, 241)},
    {QPalette::ButtonText, qRgb(32, 33, 36)},
    {QPalette::BrightText, qRgb(255, 255, 255)},
    {QPalette::ToolTipBase, qRgb(255, 255, 255)},
    {QPalette::ToolTipText, qRgb(32, 33, 36)},
    {QPalette::Light, qRgb(255, 255, 255)},
    {QPalette::Midlight, qRgb(230, 232, 234)},
    {QPalette::Mid, qRgb(190, 194, 198)},
    {QPalette::Dark, qRgb(160, 164, 168)},
    {QPalette::Highlight, kVurgu},
    {QPalette::HighlightedText, qRgb(255, 255, 255)},
    {QPalette::Link, kVurgu},
}};

constexpr std::array kSolgunlar{QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
constexpr QRgb kSolgun = qRgb(150, 154, 158);

} // namespace

void GorunumuKur() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palet;
    for (const auto& [rol, renk] : kRenkler)
        palet.setColor(rol, QColor(renk));
    for (const QPalette::ColorRole rol : kSolgunlar)
        palet.setColor(QPalette::Disabled, rol, QColor(kSolgun));
    QApplication::setPalette(palet);
}

void RenkVer(QWidget& parca, QPalette::ColorRole rol, const QColor& renk) {
    if (parca.palette().color(rol) == renk)
        return;
    QPalette palet = parca.palette();
    palet.setColor(rol, renk);
    parca.setPalette(palet);
}

} // namespace velora
