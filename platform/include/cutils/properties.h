/// Android's system properties.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/// Copies the property's value, or `default_value` (null: an empty one) when it is not set, into `value`,
/// which holds 92 bytes including the NUL; a longer value is cut. Returns the length of what was copied.
int property_get(const char* key, char* value, const char* default_value);

#ifdef __cplusplus
}
#endif
