#pragma once

#include <memory>
#include <random>

#include "support/random_method.h"

namespace trv5 {

/// A workbench in the middle of a random method, its tables verified, so that companions can be searched.
inline std::unique_ptr<WorkbenchWorld> verifiedMethod(std::mt19937& rng, const Archive& archive) {
  auto world = std::make_unique<WorkbenchWorld>(archive);
  randomMethod(*world, rng);
  for (const char* name : {"Command29", "Command34", "Command48", "Cmd_Elabora100"}) world->press(name);
  world->shell.shown.clear();
  return world;
}

}  // namespace trv5
