/// Where the device's files are.
#pragma once

#include <string>

/// The path to open for a file of the device. That is the path itself; where the library is built for a
/// workstation, RADIO_DEVICE_ROOT names the folder that stands for the device's file system.
std::string devicePath(const char* absolutePath);
