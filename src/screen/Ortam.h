#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screen/EkranListesi.h"
#include "screen/Sayfa.h"
#include "storage/Metin.h"

namespace velora {

enum class Simge { Bilgi, Soru, Uyari, Kritik };
enum class KutuDugmeleri { Tamam, EvetHayir };
enum class Cevap { Tamam, Evet, Hayir };

struct MesajKutusu {
    Metin metin; ///< a line break is one "\n"
    Metin baslik = u"Velora";
    Simge simge = Simge::Bilgi;
    KutuDugmeleri dugmeler = KutuDugmeleri::Tamam;
    Cevap baslangic = Cevap::Evet; ///< of a question: the answer that Enter gives at once
};

struct GirdiKutusu {
    Metin metin;
    Metin baslik = u"Velora";
    Metin baslangic;
};

/// Asks where a file is to be saved.
struct KayitYeriKutusu {
    Metin baslik; ///< of the box
    Metin ad;     ///< the file name that it offers, without a folder
    Metin tur;    ///< what such a file is called
    Metin uzanti; ///< with its dot; put behind a name that has none
};

/// One request of the network: GET, and nothing but its address.
struct AgIstegi {
    Metin adres;  ///< goes out as it stands, without any escaping
    int sure = 0; ///< seconds that it may take in all
    /// Asked again and again while it goes on; true gives it up.
    std::function<bool()> vazgecildi = [] { return false; };
    /// Over a connection that stays open for the next request of this kind: faster where many follow each
    /// other, but only for what does no harm when it comes to the server twice.
    bool baglantiKalsin = false;
};

/// A request that goes on by itself, as long as a copy of it is held, and whose reply nobody reads.
struct Gonderim {
    /// Whether it has come to its end, well or not. It waits for nothing, but nothing gets on unless somebody
    /// asks.
    std::function<bool()> bitti = [] { return true; };
    /// Waits for its end and lets pending events run meanwhile, until `birak` says true: then it still goes
    /// on.
    std::function<void(const std::function<bool()>& birak)> bekle = [](const std::function<bool()>&) {};
};

/// The fetch of a file over the network: GET, and the lines that are asked for.
struct AktarimIstegi {
    Metin adres;                    ///< goes out as it stands, without any escaping
    Metin kullanici = {};           ///< for a server that asks for one
    Metin parola = {};              ///< sent only with a user
    std::vector<Metin> basliklar{}; ///< header lines of the request, without their line ends
    int verisizSure = 0;            ///< seconds that may go by without a byte
    /// Asked again and again while it is waited for; true gives it up.
    std::function<bool()> vazgecildi = [] { return false; };
};

/// A fetch that goes on, as long as a copy of it is held. What waits lets pending events run, and screens may
/// come and go meanwhile.
struct Aktarim {
    /// The header lines of the reply with their line ends, as they came; empty when none came, or it was
    /// given up. Redirects aren't followed.
    std::function<Metin()> basliklar = [] { return Metin(); };
    /// The next bytes of the reply's body, at most so many. Empty behind the last one, when the connection
    /// breaks off or stands still for too long, and when it was given up.
    std::function<std::string(std::size_t enCok)> parca = [](std::size_t) { return std::string(); };
    /// Gives it up.
    std::function<void()> iptal = [] {};
};

/// Waits for a change in a folder that is watched, so long at most. True: something has changed since it was
/// last true. The watch ends with the last copy of it.
using DegisiklikBekle = std::function<bool(std::chrono::milliseconds)>;

/// The six bytes that a network adapter is known by.
using DonanimAdresi = std::array<std::uint8_t, 6>;

/// The only door to the outside. A program in a window, a test and a tool differ in what they put in here;
/// each function must be set before a screen is used, but for the network's.
struct Ortam {
    struct Sor {
        /// Shows the box and waits for the answer. Closing a question box is a no.
        std::function<Cevap(const MesajKutusu&)> mesaj;
        /// What was typed; empty text when it was cancelled.
        std::function<Metin(const GirdiKutusu&)> girdi;
        /// The path of a file that may be written; one that is there already the user has given up. None
        /// when it was cancelled.
        std::function<std::optional<std::filesystem::path>(const KayitYeriKutusu&)> kayitYeri;
        /// The path of a folder that is there, in the system's form; `baslik` is of the box. Empty when it
        /// was cancelled.
        std::function<Metin(const Metin& baslik)> klasor = [](const Metin&) { return Metin(); };
    } sor;

    struct Goster {
        /// Shows the screen's window, calls `gorununce` once it stands, and returns.
        std::function<void(EkranAdi, const std::function<void()>& gorununce)> ac;
        /// The same, but returns only when the window is closed.
        std::function<void(EkranAdi, const std::function<void()>& gorununce)> modal;
        /// Closes the screen's window, if there is one.
        std::function<void(EkranAdi)> gizle;
    } goster;

    struct Zaman {
        /// The local time of the machine.
        std::function<std::chrono::local_seconds()> simdi;
    } zaman;

    struct Olaylar {
        /// Lets pending events run: painting, timers and clicks arrive here, inside the caller.
        std::function<void()> isle;
        /// The same behind each of many small steps: what lets events run at most every few milliseconds is
        /// soon enough for a user, and costs little beside the steps.
        std::function<void()> adimda = [] {};
        /// Behind each small step of what reads much, where no event may come in between: once in a while the
        /// windows are painted and the user sees that the program is busy. No handler and no timer runs.
        std::function<void()> nefes = [] {};
        /// Ends the program, with all its screens.
        std::function<void()> bitir;
        /// The program has been told to end: what is long stops where it is.
        std::function<bool()> bitti = [] { return false; };
    } olaylar;

    struct Kopya {
        /// True: no other running copy of the program is this user's on this machine, and none will be while
        /// this one runs. Where the system can't tell, it is true.
        std::function<bool()> tek = [] { return true; };
    } kopya;

    struct Kabuk {
        /// Opens a file in the program that the user reads such files with, and doesn't wait. False: none has
        /// been started that could show the file, or tell of its absence.
        std::function<bool(const std::filesystem::path&)> dosyaAc;
        /// Opens a page in the user's browser, and doesn't wait. False: no browser has been started, or it
        /// isn't the address of a page.
        std::function<bool(const Metin& adres)> adresAc = [](const Metin&) { return false; };
        /// Starts a program, in its own folder, and doesn't wait for it. False: it hasn't been started.
        std::function<bool(const std::filesystem::path&)> calistir = [](const std::filesystem::path&) {
            return false;
        };
    } kabuk;

    struct Kagit {
        /// How wide a text is in the type that pages are painted in.
        YaziOlcer olcer;
        /// Prints the pages in one job of that name on the user's default printer. Returns when the system
        /// has taken the job; while it waits it lets pending events run. False: there is no default printer,
        /// the system didn't take the job in time, or the program is ending.
        std::function<bool(const std::vector<Sayfa>&, const Metin& isAdi)> yazdir;
        /// Writes the pages as a PDF file of that title, its texts as texts. It waits and lets events run
        /// as printing does, and needs no printer. False: it couldn't be written, and what stood there is
        /// as it was.
        std::function<bool(const std::vector<Sayfa>&, const Metin& isAdi, const std::filesystem::path&)>
            pdfYaz;
    } kagit;

    struct Odak {
        /// Gives the keyboard focus to a control of a screen, by its name.
        std::function<void(EkranAdi, MetinBakis kontrol)> ver;
    } odak;

    struct Klasorler {
        /// Where the program keeps what is its own and no setting: outside of the data tree, for this user
        /// alone. Empty where there is no such folder: then there is no journal.
        std::function<std::filesystem::path()> durum = [] { return std::filesystem::path(); };
        /// Where backups go as long as the user says nothing else.
        std::function<std::filesystem::path()> yedek = [] { return std::filesystem::path(); };
        /// Begins to watch a folder. Where it can't be watched there is nothing to wait with.
        std::function<DegisiklikBekle(const std::filesystem::path&)> izle = [](const auto&) {
            return DegisiklikBekle();
        };
    } klasorler;

    struct Ayarlar {
        /// Keeps a value of the program's own settings for this user, never in the data tree.
        std::function<void(MetinBakis bolum, MetinBakis anahtar, const Metin& deger)> yaz =
            [](MetinBakis, MetinBakis, const Metin&) {};
    } ayarlar;

    /// Without one put in here there is no network.
    struct Ag {
        /// The body of the reply; empty text on every failure. While it waits it lets pending events run, so
        /// that screens may come and go meanwhile, and other requests begin and end.
        std::function<Metin(const AgIstegi&)> getir = [](const AgIstegi&) { return Metin(); };
        /// Sends a request and doesn't wait for it. Without this one `Gonder` waits for its end.
        std::function<Gonderim(const AgIstegi&)> gonder;
        Gonderim Gonder(const AgIstegi& istek) const {
            if (gonder)
                return gonder(istek);
            getir(istek);
            return {};
        }
        /// Begins to fetch a file.
        std::function<Aktarim(const AktarimIstegi&)> aktarimAc = [](const AktarimIstegi&) {
            return Aktarim();
        };
        /// Whether the machine has a connection at all, to whatever.
        std::function<bool()> baglantiVar = [] { return false; };
        /// The hardware address of the machine, if it has one.
        std::function<std::optional<DonanimAdresi>()> donanimAdresi = [] {
            return std::optional<DonanimAdresi>();
        };
    } ag;
};

} // namespace velora
