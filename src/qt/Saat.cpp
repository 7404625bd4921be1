#include "qt/Saat.h"

#include <QDateTime>

namespace velora {

std::chrono::local_seconds MakineSaati() {
    using namespace std::chrono;
    const QDateTime simdi = QDateTime::currentDateTime();
    const QDate gun = simdi.date();
    const year_month_day tarih(year(gun.year()), month(static_cast<unsigned>(gun.month())),
                               day(static_cast<unsigned>(gun.day())));
    return local_days(tarih) + seconds(simdi.time().msecsSinceStartOfDay() / 1000);
}

} // namespace velora
