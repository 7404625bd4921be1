#pragma once

namespace velora {

/// Holds a flag up as long as it stands, also when an exception ends its block.
class Bayrak {
  public:
    explicit Bayrak(bool& bayrak) : bayrak_(bayrak) { bayrak_ = true; }
    ~Bayrak() { bayrak_ = false; }
    Bayrak(const Bayrak&) = delete;
    Bayrak& operator=(const Bayrak&) = delete;

  private:
    bool& bayrak_;
};

} // namespace velora
