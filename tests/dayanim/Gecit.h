#pragma once

#include <array>
#include <cerrno>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>

#include "dayanim/CagriKaydi.h"

/// The inside of the library that is preloaded: what it was told, and the gate that each call goes through.
namespace velora::dayanim {

inline constexpr long kHata = -1;

struct Acik {
    std::string yol; ///< empty: none of ours
    std::uint32_t seri = 0;
};

struct Durum {
    static constexpr std::size_t kEnCokAcik = 1024;

    std::recursive_mutex kilit;
    std::string agac, durum;
    std::array<Acik, kEnCokAcik> acik; ///< by the numbers of open files
    int kayit = -1;
    std::uint32_t seri = 0, no = 0;
    std::uint32_t oldur = 0, boz = 0, kisa = 0;
    int hata = EIO;
    bool sonra = false, yarim = false, yalniz = false, yavas = false, sayar = false;

    Durum();
    /// An open file or folder stands for this from now on.
    void Bagla(int no, Acik yeni);
};

/// Made at the first call, and never unmade: the program's last calls come behind all destructors.
Durum& D();

bool Altinda(std::string_view yol, const std::string& klasor);

/// What a call works on: an open file, or a name in a folder.
Acik Bul(int no);
Acik Bul(int klasor, const char* ad);

struct Is {
    Cagri cagri;
    Acik konu;
    std::string hedef = {};
    std::uint64_t konum = 0;
    std::uint64_t ek = 0;
    const void* veri = nullptr;
};

/// Does the call, unless the program is to die, or it is to fail, before it. `yap` gets how much it may read
/// or write at most. The result and `errno` as the system gives them.
long Gecir(Is is, const std::function<long(std::size_t enCok)>& yap);

} // namespace velora::dayanim
