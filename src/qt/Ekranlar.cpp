#include "qt/Ekranlar.h"

#include "qt/QtOrtam.h"
#include "qt/reservation/KayitPenceresi.h"
#include "qt/reservation/OdemeAlPenceresi.h"
#include "qt/table/TabloPenceresi.h"

namespace velora {

namespace {

template <class Pencere>
void Tanit(QtOrtam& ortam, Program& program, EkranAdi ekran) {
    ortam.Tanit(ekran,
                [&program]() -> std::unique_ptr<QWidget> { return std::make_unique<Pencere>(program); });
}

} // namespace

void EkranlariTanit(QtOrtam& ortam, Program& program) {
    Tanit<TabloPenceresi>(ortam, program, EkranAdi::FormTablo);
    Tanit<KayitPenceresi>(ortam, program, EkranAdi::FormKayit);
    Tanit<OdemeAlPenceresi>(ortam, program, EkranAdi::FormOdemeAl);
}

} // namespace velora
