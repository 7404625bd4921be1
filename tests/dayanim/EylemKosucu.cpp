// Does one thing to a tree, as a user does it, and ends. What it does to the disk on the way is counted,
// logged or disturbed by the library that is preloaded.
//
//   eylem_kosucu SCENARIO TREE JOURNAL    JOURNAL: the folder of the journal, or "-" for none
//   eylem_kosucu ac TREE JOURNAL          opens the program's journal alone: that is counted
//   eylem_kosucu tekrar KIND TREE JOURNAL does it again and again, until it is killed; tells of its beginning
//   eylem_kosucu masa KIND TREE JOURNAL   does it once for each byte that comes in, and answers with one
#include <cstdio>
#include <dlfcn.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "dayanim/CagriKaydi.h"
#include "dayanim/Senaryolar.h"

namespace velora::dayanim {
namespace {

constexpr unsigned kEnUzunIs = 30; ///< seconds; what takes longer hangs

/// Tells the library, if there is one.
void Bildir(const char* ad) {
    if (void* islev = ::dlsym(RTLD_DEFAULT, ad); islev != nullptr)
        reinterpret_cast<void (*)()>(islev)();
}

void Yap(const Senaryo& senaryo, const std::filesystem::path& kok, const std::filesystem::path& durum) {
    Masa masa(kok, durum);
    if (senaryo.hazirla)
        senaryo.hazirla(masa);
    Bildir(kBasla);
    senaryo.yap(masa);
    masa.kullanici.ProgramiKapat();
    Bildir(kBitir);
}

void YalnizAc(const std::filesystem::path& kok, const std::filesystem::path& durum) {
    test::SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    ortam.durumKlasoru = durum;
    Bildir(kBasla);
    Program(ortam.Ver(), kok).GunluguAc();
    Bildir(kBitir);
}

/// Until it is killed, or what it is told by has ended.
void Tekrarla(const Tekrar& tekrar, Masa& masa, bool sorarak) {
    char haber = 'x';
    for (int sira = 1;; ++sira) {
        if (sorarak && ::read(STDIN_FILENO, &haber, 1) != 1)
            return;
        ::alarm(kEnUzunIs);
        tekrar.yap(masa, sira);
        if ((sorarak || sira == 1) && ::write(STDOUT_FILENO, &haber, 1) != 1)
            return;
    }
}

/// 0 when all went as the script of the scenario says; what was shown otherwise is no matter of a run that is
/// disturbed.
int Kos(std::span<char*> degerler) {
    if (degerler.size() == 4)
        if (const Tekrar* tekrar = TekrarBul(degerler[1]); tekrar != nullptr) {
            Masa masa(degerler[2], degerler[3]);
            Tekrarla(*tekrar, masa, std::string_view(degerler[0]) == "masa");
            return 0;
        }
    if (degerler.size() != 3)
        return 2;
    const std::filesystem::path durum = std::string_view(degerler[2]) == "-" ? "" : degerler[2];
    if (std::string_view(degerler[0]) == "ac") {
        YalnizAc(degerler[1], durum);
        return 0;
    }
    const Senaryo* senaryo = SenaryoBul(degerler[0]);
    if (senaryo == nullptr)
        return 2;
    Yap(*senaryo, degerler[1], durum);
    return ::testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}

} // namespace
} // namespace velora::dayanim

int main(int adet, char** degerler) {
    ::alarm(velora::dayanim::kEnUzunIs);
    return velora::dayanim::Kos(std::span(degerler, static_cast<std::size_t>(adet)).subspan(1));
}
