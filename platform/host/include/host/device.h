/// The folder that stands for the device's file system, and the properties in it.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// The value of the environment variable RADIO_DEVICE_ROOT; empty when it is not set.
std::string deviceRoot();

/// A property: one set by setProperty, else the line key=value of default.prop under the device root, else
/// nothing. Blanks in front of the key are ignored, a line that begins with # is a comment; the value is
/// taken as it stands.
bool findProperty(std::string_view key, std::string& value);

/// Sets a property for this process.
void setProperty(std::string_view key, std::string_view value);

} // namespace host
