#include <array>

#include <QDBusMessage>
#include <QDate>
#include <QDeadlineTimer>
#include <QTest>

#include "destek/Kayitlar.h"
#include "okuyucu/Erisim.h"
#include "okuyucu/Oturum.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr std::array kGunler{u"Pazartesi", u"Salı",      u"Çarşamba", u"Perşembe",
                             u"Cuma",      u"Cumartesi", u"Pazar"};
constexpr std::array kAylar{u"Ocak",   u"Şubat",   u"Mart",  u"Nisan", u"Mayıs", u"Haziran",
                            u"Temmuz", u"Ağustos", u"Eylül", u"Ekim",  u"Kasım", u"Aralık"};

QString GunAdi(const QDate& gun) {
    return QString::fromUtf16(kGunler.at(static_cast<std::size_t>(gun.dayOfWeek() - 1)));
}

/// "17 Haziran 2026 Çarşamba".
QString UzunTarih(const QDate& gun) {
    return QStringLiteral("%1 %2 %3 %4")
        .arg(gun.day())
        .arg(QString::fromUtf16(kAylar.at(static_cast<std::size_t>(gun.month() - 1))))
        .arg(gun.year())
        .arg(GunAdi(gun));
}

QString KisaTarih(const QDate& gun) {
    return gun.toString(QStringLiteral("dd.MM.yyyy"));
}

/// Whether it comes true while the patience lasts.
template <class Kosul>
bool Olur(const Kosul& kosul) {
    const QDeadlineTimer sabir(kSabirMs);
    while (!kosul()) {
        if (sabir.hasExpired())
            return false;
        QTest::qWait(100);
    }
    return true;
}

} // namespace

/// The running program as a screen reader meets it, over its bus. The clock is the real one: a firm of the
/// year that it shows, with today's evening, 17 June and 18 June taken.
class OkuyucuTest : public QObject {
    Q_OBJECT

  public slots: // what the bus calls
    void Duyuldu(const QDBusMessage& olay) {
        const QVariantList degerler = olay.arguments();
        if (degerler.value(0).toString() == QStringLiteral("focused") && degerler.value(1).toInt() == 1)
            odaklar_ << Okunan(olay.service(), olay.path()).Ad();
    }

  private slots:
    void initTestCase() {
        FirmaKoy();
        QCOMPARE(oturum_.Kur(), QString());
        QCOMPARE(
            oturum_.Dinle(QStringLiteral("object:state-changed:focused"), *this, SLOT(Duyuldu(QDBusMessage))),
            QString());
        Okunan::Baglan(oturum_.Erisim());
        QCOMPARE(oturum_.ProgramiBaslat(), QString());
        GirisYap();
        const QString on = UzunTarih(haziran_) + QStringLiteral(", Gündüz, Ön rezervasyon");
        Olur([&] { return YilTablosu().Hucre(11, 16).Ad() == on; });
        QCOMPARE(YilTablosu().Hucre(11, 16).Ad(), on);
        tablo_ = YilTablosu();
    }

    /// A window that a failed test has left goes.
    void cleanup() {
        if (QTest::currentTestFailed())
            oturum_.Bas(QStringLiteral("Escape"));
    }

    void the_year_table_has_24_rows_and_31_columns_with_their_heads() {
        QCOMPARE(tablo_.Rol(), QStringLiteral("table"));
        QCOMPARE(tablo_.Satirlar(), 24);
        QCOMPARE(tablo_.Sutunlar(), 31);
        QCOMPARE(tablo_.SatirBasi(11).Ad(), QStringLiteral("HAZİRAN Gündüz"));
        QCOMPARE(tablo_.SatirBasi(10).Ad(), QStringLiteral("HAZİRAN Gece"));
        QCOMPARE(tablo_.SatirBasi(23).Rol(), QStringLiteral("row header"));
        QCOMPARE(tablo_.SutunBasi(16).Ad(), QStringLiteral("17"));
        QCOMPARE(tablo_.SutunBasi(30).Rol(), QStringLiteral("column header"));
    }

    void a_cell_tells_its_day_its_slot_and_its_state_and_describes_itself_as_the_hover_label() {
        const Okunan on = tablo_.Hucre(11, 16);
        QCOMPARE(on.Rol(), QStringLiteral("cell"));
        QCOMPARE(on.Aciklama(),
                 KisaTarih(haziran_) + QStringLiteral(" ") + GunAdi(haziran_) + QStringLiteral(" - Gündüz"));
        QVERIFY(on.Odaklanir() && !on.Odakta());
        QCOMPARE(on.Ust().Yol(), tablo_.Yol());
        const QDate ertesi = haziran_.addDays(1);
        QCOMPARE(tablo_.Hucre(10, 17).Ad(), UzunTarih(ertesi) + QStringLiteral(", Gece, Kesin rezervasyon"));
        QVERIFY(tablo_.Hucre(11, 17).Ad().startsWith(UzunTarih(ertesi) + QStringLiteral(", Gündüz, Boş")));
        // There is no 31 June.
        QCOMPARE(tablo_.Hucre(10, 30).Ad(), QString());
    }

    void the_drop_downs_the_legend_and_the_menus_have_names() {
        const Okunan yil = Ana().Bul(QStringLiteral("combo box"), QString::number(haziran_.year()));
        QCOMPARE(yil.Etiketi().Ad(), QStringLiteral("Çalışma Yılı"));
        QCOMPARE(Ana().Bul(QStringLiteral("combo box"), QStringLiteral("Gül Salonu")).Etiketi().Ad(),
                 QStringLiteral("Salon"));
        QVERIFY(Ana()
                    .Bul(QString(),
                         QStringLiteral("Üst gece, alt gündüz, Kesin, Ön, Boş, Hafta sonu, Tatil, Bugün"))
                    .Var());
        for (const char* menu : {"Dosya", "Raporlar", "Ayarlar"})
            QVERIFY(Ana().Bul(QStringLiteral("menu item"), QString::fromUtf8(menu)).Var());
        HepsiAdli(Ana());
    }

    void each_arrow_key_tells_the_cell_that_the_ring_has_come_to() {
        QVERIFY(Olur([&] { return tablo_.Odakta(); }));
        const QString gece = UzunTarih(bugun_) + QStringLiteral(", Gece, Ön rezervasyon");
        const QString gunduz = UzunTarih(bugun_) + QStringLiteral(", Gündüz, Boş"); // and perhaps why
        const int satir = 2 * (bugun_.month() - 1);
        Bas(QStringLiteral("Right"));
        QVERIFY2(OdagaGeldi(gece), Odaklar());
        Bas(QStringLiteral("Down"));
        QVERIFY2(OdagaGeldi(gunduz), Odaklar());
        QVERIFY(tablo_.Hucre(satir + 1, bugun_.day() - 1).Odakta());
        QVERIFY(!tablo_.Hucre(satir, bugun_.day() - 1).Odakta());
        Bas(QStringLiteral("Up"));
        QVERIFY2(OdagaGeldi(gece), Odaklar());
    }

    void the_bell_says_what_it_is_and_is_pressed_by_keys() {
        const auto zil = [] {
            return Ana().Bul(QStringLiteral("push button"), QStringLiteral("Özel Hatırlatma Var"));
        };
        QVERIFY(zil().Var());
        QVERIFY(Olur([&] { return tablo_.Odakta(); }));
        Bas(QStringLiteral("shift+Tab"));
        QVERIFY(Olur([&] { return zil().Odakta(); }));
        Bas(QStringLiteral("space"));
        const Okunan pencere = Acilan(QStringLiteral("Özel Hatırlatmalar"));
        QVERIFY(pencere.Var());
        HepsiAdli(pencere);
        Kapat(QStringLiteral("Özel Hatırlatmalar"));
        Bas(QStringLiteral("Tab"));
        QVERIFY(Olur([&] { return tablo_.Odakta(); }));
    }

    void the_window_of_a_reservation_names_its_tabs_its_values_and_the_field_of_a_list() {
        Bas(QStringLiteral("Return"));
        const Okunan pencere = Acilan(QStringLiteral("Kayıt Düzenle"));
        QVERIFY(pencere.Var());
        for (const char* sayfa : {"Genel Bilgiler ", "Ödemeler", "Menüler", "Hizmetler"})
            QVERIFY2(pencere.Bul(QStringLiteral("page tab"), QString::fromUtf8(sayfa)).Var(), sayfa);
        const Okunan nitelik = pencere.Bul(QStringLiteral("text"), QStringLiteral("Niteliği"));
        QCOMPARE(nitelik.Ust().Rol(), QStringLiteral("combo box"));
        QCOMPARE(nitelik.Ust().Ad(), QStringLiteral("Sünnet"));
        QVERIFY(DegerVar(pencere, QStringLiteral("Rezervasyon Tarihi: ") + KisaTarih(bugun_) +
                                      QStringLiteral(" - Gece")));
        QVERIFY(DegerVar(pencere, QStringLiteral("Salon: Gül Salonu")));
        HepsiAdli(pencere);
        Bas(QStringLiteral("Control+Tab"));
        QVERIFY(Olur([&] { return pencere.Bul(QStringLiteral("tree"), QStringLiteral("Ödemeler")).Var(); }));
        QVERIFY(DegerVar(pencere, QStringLiteral("Kalan Ödeme: 7.500 TL")));
        HepsiAdli(pencere);
        Bas(QStringLiteral("Control+Tab"));
        QVERIFY(
            Olur([&] { return pencere.Bul(QStringLiteral("text"), QStringLiteral("Menü içeriği")).Var(); }));
        HepsiAdli(pencere);
        Bas(QStringLiteral("Control+Tab"));
        QVERIFY(
            Olur([&] { return pencere.Bul(QStringLiteral("text"), QStringLiteral("Sanatçı, not")).Var(); }));
        HepsiAdli(pencere);
        Kapat(QStringLiteral("Kayıt Düzenle"));
    }

    void all_that_takes_the_focus_has_a_name_in_the_windows_of_the_keys_data() {
        QTest::addColumn<QString>("tus");
        QTest::addColumn<QString>("ad");
        QTest::addColumn<QString>("sonSayfadaki");
        QTest::newRow("search") << "F2"
                                << "Kayıt Arama" << QString();
        QTest::newRow("report") << "F3"
                                << "Rezervasyon Raporu" << QString();
        QTest::newRow("settings") << "F7"
                                  << "Genel Program Ayarları"
                                  << "Geçmiş Günler, Metin Rengi";
    }
    void all_that_takes_the_focus_has_a_name_in_the_windows_of_the_keys() {
        QFETCH(const QString, tus);
        QFETCH(const QString, ad);
        QFETCH(const QString, sonSayfadaki);
        QVERIFY(Olur([&] { return tablo_.Odakta(); }));
        Bas(tus);
        const Okunan pencere = Acilan(ad);
        QVERIFY(pencere.Var());
        HepsiAdli(pencere);
        if (!sonSayfadaki.isEmpty()) {
            Bas(QStringLiteral("Control+Tab"));
            QVERIFY(Olur([&] { return pencere.Bul(QStringLiteral("push button"), sonSayfadaki).Var(); }));
            HepsiAdli(pencere);
        }
        Kapat(ad);
    }

    void a_second_copy_says_that_one_runs_already_and_ends_while_the_first_one_stays() {
        QCOMPARE(oturum_.IkincisiniBaslat(), QString());
        const auto kutu = [] {
            return Okunan::MasaUstu().Bul(QString(), QStringLiteral("Velora Programı zaten çalışıyor!"));
        };
        QVERIFY(Olur([&] { return kutu().Var(); }));
        Bas(QStringLiteral("Return"));
        QVERIFY(Olur([&] { return oturum_.IkincisiBitti(); }));
        QVERIFY(oturum_.ProgramCalisiyor());
        QVERIFY(YilTablosu().Var());
    }

  private:
    void FirmaKoy() const {
        const Metin yol = u"Gül Salonu/" + SayiMetni(haziran_.year()) + u"/";
        const auto koy = [&](const QDate& gun, const Metin& dilim, const OrnekKayit& kayit, bool on) {
            KayitKoy(oturum_.agac, yol + KisaTarih(gun).toStdU16String() + dilim, kayit, on);
        };
        // The start asks for these.
        oturum_.agac.KoyMetin(u"Firma.dll", u"\"Gül\"\r\n");
        oturum_.agac.KoyMetin(u"Menuler.dat", u"\"Klasik\",\"et\"\r\n");
        oturum_.agac.KoyMetin(u"Sozlesme.dat", u"\"Maddeler\",\"1\"\r\n");
        oturum_.agac.KoyMetin(u"User.dll", u"\"admin\",\"g5\"" + Tekrarla(u",\"1\"", 11) + u"\r\n");
        oturum_.agac.KoyMetin(u"Salon.dat", u"\"Gül Salonu\"\r\n\"Kır Bahçesi\"\r\n");
        oturum_.agac.KoyMetin(u"Settings.dll", AyarMetni());
        oturum_.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
        koy(haziran_, u" - Gündüz", {}, true);
        koy(haziran_.addDays(1), u" - Gece", {.ad = u"Can Er"}, false);
        koy(bugun_, u" - Gece",
            {.nitelik = u"Sünnet",
             .ucret = u"7500",
             .alinan = u"0",
             .kalan = u"7500",
             .hatirlat = KisaTarih(bugun_).toStdU16String(),
             .check19 = 1},
            true);
    }

    static Metin Tekrarla(const Metin& parca, int kez) {
        Metin hepsi;
        for (int i = 0; i < kez; ++i)
            hepsi += parca;
        return hepsi;
    }

    /// Behind the start-up screen the login comes, with the focus in the password.
    void GirisYap() {
        const Okunan giris = Acilan(QStringLiteral("Kullanıcı Girişi"));
        QVERIFY(giris.Var());
        QVERIFY(
            Olur([&giris] { return giris.Bul(QStringLiteral("text"), QStringLiteral("Parola")).Odakta(); }));
        HepsiAdli(giris);
        for (const char* tus : {"g", "5", "Return"})
            Bas(QString::fromLatin1(tus));
        QVERIFY(Olur([&] { return YilTablosu().Var(); }));
    }

    static Okunan Program() { return Okunan::MasaUstu().Cocuklar().value(0); }
    static Okunan Ana() { return Program().Cocuklar().value(0); }
    static Okunan YilTablosu() { return Ana().Bul(QStringLiteral("table"), QStringLiteral("Yıl tablosu")); }

    /// The window of this title, as soon as it is there; nothing when it doesn't come.
    static Okunan Acik(const QString& ad) {
        for (const Okunan& pencere : Program().Cocuklar())
            if (pencere.Gorunur() && pencere.Ad() == ad)
                return pencere;
        return {};
    }
    static Okunan Acilan(const QString& ad) {
        return Olur([&ad] { return Acik(ad).Var(); }) ? Acik(ad) : Okunan();
    }
    void Kapat(const QString& ad) {
        Bas(QStringLiteral("Escape"));
        QVERIFY(Olur([&] { return !Acik(ad).Var(); }));
    }
    void Bas(const QString& tus) { QVERIFY2(oturum_.Bas(tus), "xdotool presses no key"); }

    /// The last that was told of the focus begins so.
    bool OdagaGeldi(const QString& ad) const {
        return Olur([&] { return !odaklar_.isEmpty() && odaklar_.last().startsWith(ad); });
    }
    QByteArray Odaklar() const { return odaklar_.join(QStringLiteral(" / ")).toUtf8(); }

    static bool DegerVar(const Okunan& pencere, const QString& ad) {
        return pencere.Bul(QStringLiteral("label"), ad).Var();
    }
    static void HepsiAdli(const Okunan& pencere) {
        for (const Okunan& biri : pencere.Hepsi())
            QVERIFY2(!biri.Odaklanir() || !biri.Ad().isEmpty(), qPrintable(biri.Rol() + biri.Yol()));
    }

    const QDate bugun_ = QDate::currentDate();
    const QDate haziran_{bugun_.year(), 6, 17};
    Oturum oturum_;
    Okunan tablo_;
    QStringList odaklar_;
};

QTEST_GUILESS_MAIN(OkuyucuTest)
#include "OkuyucuTest.moc"
