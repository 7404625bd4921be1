#pragma once

namespace velora {

/// While one of these lives, "let pending events run" lets none in. For handlers that the toolkit calls in
/// the middle of its own work, such as a resize, where events from inside would find it half done.
class OlayKilidi {
  public:
    OlayKilidi() { ++sayi_; }
    ~OlayKilidi() { --sayi_; }
    OlayKilidi(const OlayKilidi&) = delete;
    OlayKilidi& operator=(const OlayKilidi&) = delete;

    static bool Kapali() { return sayi_ > 0; }

  private:
    static inline int sayi_ = 0;
};

} // namespace velora
