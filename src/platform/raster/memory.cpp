#include "platform/raster/memory.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string_view>

#include "platform/error.h"

namespace raster {

namespace {

std::optional<uint64_t> number_in(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  uint64_t value = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc{}) return std::nullopt;
  return value;
}

// The number behind the first line that begins so.
std::optional<uint64_t> number_after(const std::string& file, std::string_view beginning) {
  std::ifstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(beginning)) return number_in(std::string_view(line).substr(beginning.size()));
  }
  return std::nullopt;
}

uint64_t machine_free(const std::string& root) {
  const auto kilobytes = number_after(root + "/proc/meminfo", "MemAvailable:");
  return kilobytes ? *kilobytes * 1024 : UINT64_MAX;
}

// The files of the two kinds of control groups. Pages that were read from files and not looked at again are used, and
// can be had.
struct GroupKind {
  const char *line, *mount, *limit, *used, *reclaimable;
};
constexpr GroupKind GROUP_KINDS[] = {
    {"0::", "/sys/fs/cgroup", "/memory.max", "/memory.current", "inactive_file "},
    {":memory:", "/sys/fs/cgroup/memory", "/memory.limit_in_bytes", "/memory.usage_in_bytes", "total_inactive_file "},
};

uint64_t group_free(const GroupKind& kind, const std::string& folder) {
  const auto limit = number_after(folder + kind.limit, ""), used = number_after(folder + kind.used, "");
  if (!limit || !used) return UINT64_MAX;
  const uint64_t held = *used - std::min(*used, number_after(folder + "/memory.stat", kind.reclaimable).value_or(0));
  return *limit - std::min(*limit, held);
}

// What is left to this process's group and to all groups that hold it.
uint64_t groups_free(const std::string& root) {
  uint64_t least = UINT64_MAX;
  std::ifstream lines(root + "/proc/self/cgroup");
  for (std::string line; std::getline(lines, line);) {
    for (const GroupKind& kind : GROUP_KINDS) {
      const size_t at = line.find(kind.line);
      if (at == std::string::npos) continue;
      std::string group = line.substr(at + std::string_view(kind.line).size());
      for (;; group.resize(group.rfind('/'))) {
        least = std::min(least, group_free(kind, root + kind.mount + group));
        if (group.find('/') == std::string::npos) break;
      }
    }
  }
  return least;
}

}  // namespace

uint64_t free_memory(const std::string& root) {
  const char* told = std::getenv("KISO_FREE_MEMORY");
  if (const auto bytes = number_in(told ? told : "")) return *bytes;
  return std::min(machine_free(root), groups_free(root));
}

void check_memory(uint64_t bytes) {
  if (bytes > free_memory() / 2) throw RuntimeError(7);
}

}  // namespace raster
