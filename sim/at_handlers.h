/// What the tables of AT commands share.
#pragma once

#include "at_commands.h"

namespace sim {

/// Whether the parameters are as many and of the kind and range that the command's rules want.
bool parametersFit(const AtCall& call);

/// Checks the parameters by the command's rules and keeps them for its query.
AtReply setStored(const AtCall& call);
AtReply queryStored(const AtCall& call);

/// Shows the ranges that the command's rules allow: +NAME: (0-3),(0-1)
AtReply testStored(const AtCall& call);

/// +EGMC=1,"QueryTxVerifyIdx",<technology>,<band>: a question in the form of a setting.
AtReply countTransmitPaths(const AtCall& call);

/// The tables beside the basic one.
std::span<const AtCommand> bandCommands();
std::span<const AtCommand> configurationCommands();

} // namespace sim
