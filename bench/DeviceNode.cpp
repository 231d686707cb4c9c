#include "bench/DeviceNode.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace glidetrak::bench {

namespace {

/// The device says so in a line of its own.
bool IsDevice(const std::filesystem::path& folder, const std::string& sUnique) {
  std::ifstream file(folder / "device" / "uevent");
  for (std::string sLine; std::getline(file, sLine);) {
    if (sLine == "HID_UNIQ=" + sUnique) return true;
  }
  return false;
}

}  // namespace

int NodeUser() {
  const char* sCaller = geteuid() == 0 ? std::getenv("SUDO_UID") : nullptr;
  return sCaller == nullptr ? static_cast<int>(getuid()) : std::atoi(sCaller);
}

bool GiveNode(const std::string& sUnique, int iUser) {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator("/sys/class/hidraw", error)) {
    if (!IsDevice(entry.path(), sUnique)) continue;
    const std::string sNode = "/dev/" + entry.path().filename().string();
    return chown(sNode.c_str(), static_cast<uid_t>(iUser), static_cast<gid_t>(-1)) == 0 &&
           chmod(sNode.c_str(), S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP) == 0;
  }
  return false;
}

}  // namespace glidetrak::bench
