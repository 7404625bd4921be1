#include "qt/Yerlesimler.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include "qt/Gorunum.h"

namespace velora {

QVBoxLayout* SutunKur(QWidget& parca) {
    auto* sutun = new QVBoxLayout(&parca);
    sutun->setContentsMargins(2 * kAralik, 2 * kAralik, 2 * kAralik, 2 * kAralik);
    sutun->setSpacing(kAralik);
    return sutun;
}

QFormLayout* FormKur() {
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(kAralik);
    form->setVerticalSpacing(kAralik);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    return form;
}

QHBoxLayout* DugmeSeridi(std::initializer_list<QPushButton*> dugmeler) {
    auto* serit = new QHBoxLayout;
    serit->setSpacing(kAralik);
    serit->addStretch(1);
    for (QPushButton* dugme : dugmeler)
        serit->addWidget(dugme);
    return serit;
}

void Adlandir(QWidget& parca, const QString& ad, QString yazi) {
    parca.setObjectName(ad);
    parca.setAccessibleName(yazi.remove(u'&'));
}

} // namespace velora
