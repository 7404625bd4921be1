#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

#include <QObject>

namespace velora {

/// Does work that may stand still for long in a thread of its own: one job after the other, in the order in
/// which they came. A job holds all that it needs and touches nothing else.
class Isci {
  public:
    using Is = std::function<bool()>;

    Isci() = default;
    /// Waits for its jobs, but not for long: one that hangs is left alone.
    ~Isci();
    Isci(const Isci&) = delete;
    Isci& operator=(const Isci&) = delete;

    /// `bitince` gets the result of the job, false also when it ended by an exception. It runs in the thread
    /// of this object, from its event loop, and not at all once this object is gone.
    void Ver(Is is, std::function<void(bool)> bitince);

    /// Waits until all jobs are done, for a program that ends. False: after some seconds one of them still
    /// isn't, and may never be; static things and the toolkit must not be taken from under it.
    bool Bekle();

  private:
    struct Gorev {
        Is is;
        std::function<void(bool)> bitince;
    };
    struct Ic;
    static void Calis(Ic& ic);

    QObject alici_; // of the results
    std::shared_ptr<Ic> ic_;
    std::thread is_;
};

} // namespace velora
