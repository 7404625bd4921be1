#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "destek/Kullanici.h"

namespace velora::dayanim {

/// A tree: the bytes of each file by its path below the root, with "/" between the names. A folder stands
/// there too, with a "/" at its end and no bytes.
using Agac = std::map<std::string, std::string>;

/// The firm that every scenario begins with: two halls with reservations of several years, short and long
/// ones, all files of the firm. No two values are alike.
const Agac& TemelAgac();

/// A person at the desk of that firm, on Friday, 15 June 2012.
class Masa {
  public:
    /// `durum`: the folder of the journal, empty for none. The journal is opened as the program does it. In a
    /// tree without a profile the first run stands there instead of the table.
    Masa(const std::filesystem::path& kok, const std::filesystem::path& durum);

    Program& Prog() { return kullanici.Prog(); }
    void EkranBekle(EkranAdi ad, std::function<void()> is);
    void Soru(const Metin& metin);

    test::Kullanici kullanici;
};

/// Something that a user does and that changes files.
struct Senaryo {
    std::string_view ad;
    std::function<void(Masa&)> yap;
    std::function<void(Masa&)> hazirla = {}; ///< what he does before; its calls aren't counted
    /// The files, below the root, of which the tree has another text than the firm's; empty text: none.
    Agac degisik = {};
    bool ayri = false;        ///< it is more than one action: each of them is there wholly or not at all
    Agac yokGibi = {};        ///< by file, a text that is as good as none: the list is emptied before it goes
    std::string disinda = {}; ///< a file of which the journal takes no notice: it is fetched anew
};

std::span<const Senaryo> Senaryolar();
const Senaryo* SenaryoBul(std::string_view ad);
/// The firm's tree with these differences.
Agac BaslangicAgaci(const Agac& degisik);

/// A kind of writing that can go on for ever: `yap` does one piece of it, counted from 1; the second piece
/// takes the tree back to where the first one was, or nearly so.
struct Tekrar {
    std::string_view ad;
    std::function<void(Masa&, int sira)> yap;
    Agac degisik = {};       ///< as in `Senaryo`
    std::string uzayan = {}; ///< a file that only grows, line by line
};

std::span<const Tekrar> Tekrarlar();
const Tekrar* TekrarBul(std::string_view ad);

} // namespace velora::dayanim
