#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "storage/Metin.h"

namespace velora {

struct Program;

/// Fetches a whole file over the network, for a screen that has it as a component. It shows no message: what
/// is to be told it tells by its events. One file at a time: who calls it again while it fetches, as from a
/// click among the events, gives up the fetch before.
///
/// A handler of an event may unload the screen, and the component with it: the fetch is given up then, and
/// nothing of the component is touched any more.
class FileDownloader {
  public:
    explicit FileDownloader(Program& program) : program_(program) {}
    ~FileDownloader() { Cancel(); }
    FileDownloader(const FileDownloader&) = delete;
    FileDownloader& operator=(const FileDownloader&) = delete;

    /// Puts what lies at that address into the file `hedef`, which is emptied as soon as the reply has been
    /// found good, and its folder made. Returns behind the last event: true when all of it came.
    ///
    /// Whatever doesn't come to its end leaves no file. One that stood there before the fetch began to write
    /// stays. A reply of no length, or of length 0, ends it without an event.
    bool DownloadFile(const Metin& adres, const Metin& hedef, const Metin& kullanici = {},
                      const Metin& parola = {});
    /// Stops the fetch that goes on, if there is one: no further event comes of it.
    void Cancel();

    /// The events, set by the screen.
    struct Olaylar {
        std::function<void(const Metin& metin)> hata;
        std::function<void(const Metin& metin)> durum;
        std::function<void()> tamamlandi; ///< all bytes are held and nobody has stopped it
        std::function<void(const Metin& yuzde)> ilerledi;
    };
    Olaylar olaylar;

    /// Where a fetch goes on that has ended before. Nothing in the program asks for that.
    struct Kalan {
        std::uint64_t baslangic = 0; ///< bytes that the target holds
        std::uint64_t uzakBoy = 0;   ///< bytes of the whole file
    };
    std::optional<Kalan> devam;

    /// Seconds that may go by without a byte before a fetch counts as broken off.
    int verisizSure = 20;

  private:
    struct Kosu;

    Program& program_;
    std::shared_ptr<Kosu> suren_; // the last run, ended or not
};

} // namespace velora
