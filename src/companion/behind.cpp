// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/behind.h"

#include <system_error>
#include <thread>
#include <utility>

namespace tallyroll {
namespace {

struct Behind {
  ~Behind() { Await(); }
  void Await() {
    if (thread.joinable()) thread.join();
  }

  std::thread thread;
  std::string class_path;
  std::string fault;  // written by the thread, read when it is done
};

// Of the whole program; set by RunBehind.
Behind behind;

}  // namespace

void RunBehind(const std::string& class_path, std::function<std::string()> work) {
  behind.Await();
  behind.class_path = class_path;
  auto run = [work = std::move(work)] { behind.fault = work(); };
  try {
    behind.thread = std::thread(run);
  } catch (const std::system_error&) {
    run();
  }
}

void AwaitBehind() {
  behind.Await();
}

std::string FaultBehind(const std::string& class_path) {
  behind.Await();
  if (behind.class_path != class_path) return {};
  return std::exchange(behind.fault, {});
}

}  // namespace tallyroll
