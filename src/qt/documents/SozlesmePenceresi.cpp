#include "qt/documents/SozlesmePenceresi.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "documents/FormSozlesme.h"
#include "qt/Baglayici.h"
#include "qt/CokSatirKutusu.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

SozlesmePenceresi::SozlesmePenceresi(Program& program) : EkranPenceresi(program.FormSozlesme.Tut()) {
    auto* sutun = SutunKur(*this);
    QFormLayout* form = FormKur();
    SatirEkle<QLineEdit>(*form, QStringLiteral("Unvan"), Model().Unvan);
    SatirEkle<QComboBox>(*form, QStringLiteral("Sehir"), Model().Sehir);
    SatirEkle<QLineEdit>(*form, QStringLiteral("Baslik"), Model().Baslik);
    SatirEkle<CokSatirKutusu>(*form, QStringLiteral("Sozlesme"), Model().Sozlesme);
    sutun->addLayout(form, 1);
    auto* ornek = DugmeYap({"Command1", &FormSozlesme::Command1, &FormSozlesme::Command1_Click});
    auto* pdf = DugmeYap({"Pdf", &FormSozlesme::Pdf, &FormSozlesme::Pdf_Click});
    sutun->addLayout(TamamIptal({"Command2", &FormSozlesme::Command2, &FormSozlesme::Command2_Click},
                                {"Command3", &FormSozlesme::Command3, &FormSozlesme::Command3_Click},
                                {ornek, pdf}));
    resize(720, 480);
    IlkOdak("Sozlesme");
}

} // namespace velora
