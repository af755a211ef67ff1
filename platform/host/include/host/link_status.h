/// Whether the link to the modem is up: told by the message library, heard by the status library.
#pragma once

#include <functional>

namespace host {

enum class LinkState { Unknown, Up, Lost };

using LinkObserver = std::function<void(LinkState)>;

/// Reports a state; an equal one in a row is not repeated. Observers are called on the caller's thread.
void publishLinkState(LinkState state);

/// Replaces the one observer, and calls it at once with the present state unless that is unknown. When it
/// returns, the previous observer is not running any more.
void observeLinkState(LinkObserver observer);

} // namespace host
