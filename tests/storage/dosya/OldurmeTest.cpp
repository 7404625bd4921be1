#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>
#include <thread>

#include "storage/DosyaAgaci.h"
#include "storage/RezervasyonDosyalari.h"

// A program that is killed while it saves.
namespace velora {
namespace {

using test::DosyaAgaci;

constexpr int kTur = 150;
constexpr unsigned kEnUzunOmur = 20; ///< seconds after which a forgotten child ends by itself

struct OrnekKayit {
    std::string bayt;
    std::array<Metin, kAnaDegerSayisi> degerler;
};

OrnekKayit YeniOrnek(char harf, std::size_t uzunluk) {
    OrnekKayit ornek;
    for (std::size_t i = 0; i < ornek.degerler.size(); ++i) {
        const std::string deger(uzunluk + i, harf);
        ornek.bayt += (i == 0 ? "\"" : ",\"") + deger + "\"";
        ornek.degerler[i] = Metin(deger.begin(), deger.end());
    }
    ornek.bayt += "\r\n";
    return ornek;
}

/// Saves the two records in turn for ever. Tells by one byte that it has begun.
[[noreturn]] void DurmadanYaz(const DosyaAgaci& kok, const Metin& yol, const OrnekKayit& kisa,
                              const OrnekKayit& uzun, int haber) {
    ::alarm(kEnUzunOmur);
    for (unsigned i = 0;; ++i) {
        kok.dosyalar.Yaz(yol, i % 2 == 0 ? uzun.bayt : kisa.bayt);
        if (i == 1 && ::write(haber, "x", 1) != 1)
            ::_exit(1);
    }
}

/// Starts the saving child, lets it run for a while and kills it. False when it didn't come so far.
bool BirOlum(const DosyaAgaci& kok, const Metin& yol, const OrnekKayit& kisa, const OrnekKayit& uzun,
             std::chrono::microseconds sure) {
    std::array<int, 2> boru{};
    if (::pipe(boru.data()) != 0)
        return false;
    const pid_t cocuk = ::fork();
    if (cocuk == 0)
        DurmadanYaz(kok, yol, kisa, uzun, boru[1]);
    ::close(boru[1]);
    char haber = 0;
    const bool basladi = cocuk > 0 && ::read(boru[0], &haber, 1) == 1;
    ::close(boru[0]);
    std::this_thread::sleep_for(sure);
    int sonuc = 0;
    if (cocuk <= 0)
        return false;
    ::kill(cocuk, SIGKILL);
    return ::waitpid(cocuk, &sonuc, 0) == cocuk && basladi && WIFSIGNALED(sonuc) &&
           WTERMSIG(sonuc) == SIGKILL;
}

/// The values of the file; empty texts when something else than line ends stands behind them.
std::array<Metin, kAnaDegerSayisi> BaytinDegerleri(const std::string& bayt) {
    std::array<Metin, kAnaDegerSayisi> degerler;
    DegerOkuyucu okuyucu(bayt);
    for (Metin& deger : degerler)
        okuyucu.Oku(deger);
    return okuyucu.Sonda() ? degerler : std::array<Metin, kAnaDegerSayisi>{};
}

} // namespace

TEST(Oldurme, A_program_killed_while_saving_leaves_one_of_the_two_records_whole) {
    const DosyaAgaci kok;
    const Metin yol = kok.TamYol(u"05.01.2012 - Gündüz");
    const OrnekKayit kisa = YeniOrnek('k', 5);
    const OrnekKayit uzun = YeniOrnek('u', 150);
    ASSERT_LT(uzun.bayt.size(), 4096U);
    kok.Koy(u"05.01.2012 - Gündüz", kisa.bayt);

    std::mt19937 rastgele(5000);
    std::uniform_int_distribution<int> mikrosaniye(0, 1500);
    int kisaSayisi = 0;
    int uzunSayisi = 0;
    for (int tur = 0; tur < kTur; ++tur) {
        ASSERT_TRUE(BirOlum(kok, yol, kisa, uzun, std::chrono::microseconds(mikrosaniye(rastgele))));
        const auto bayt = kok.Oku(u"05.01.2012 - Gündüz");
        ASSERT_TRUE(bayt);
        const auto degerler = BaytinDegerleri(*bayt);
        kisaSayisi += degerler == kisa.degerler ? 1 : 0;
        uzunSayisi += degerler == uzun.degerler ? 1 : 0;
        ASSERT_EQ(kisaSayisi + uzunSayisi, tur + 1) << testing::PrintToString(*bayt);
    }
    EXPECT_GT(kisaSayisi, 0);
    EXPECT_GT(uzunSayisi, 0);
}

} // namespace velora
