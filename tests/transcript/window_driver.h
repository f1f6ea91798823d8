#pragma once

#include <functional>
#include <memory>

#include "driver.h"

namespace tavrelo::transcript {

/// Makes the toolkit ready, on the offscreen platform unless another one is asked for by the environment. To
/// be kept while window drivers are in use; one per process.
class WindowSystem {
  public:
    WindowSystem();
    ~WindowSystem();
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;

  private:
    struct Toolkit;
    std::unique_ptr<Toolkit> m_toolkit;
};

/// A fresh program in a real window. Needs a WindowSystem.
std::unique_ptr<Driver> MakeWindowDriver(const DriverOptions& options);

}  // namespace tavrelo::transcript
