#pragma once

#include <functional>
#include <utility>

#include "storage/dosya/Dosyalar.h"

namespace velora::test {

/// Whether folders are listed ahead of who reads them, as long as it stands.
class OndenIzi {
  public:
    explicit OndenIzi(Dosyalar& dosyalar) : dosyalar_(dosyalar), okurken_(dosyalar.okurken) {
        dosyalar.okurken = [this] {
            goruldu_ = goruldu_ || dosyalar_.Ondekiler() != nullptr;
            if (okurken_)
                okurken_();
        };
    }
    OndenIzi(const OndenIzi&) = delete;
    OndenIzi& operator=(const OndenIzi&) = delete;
    ~OndenIzi() { dosyalar_.okurken = std::move(okurken_); }

    bool Goruldu() const { return goruldu_; }

  private:
    Dosyalar& dosyalar_;
    std::function<void()> okurken_;
    bool goruldu_ = false;
};

} // namespace velora::test
