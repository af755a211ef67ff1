#include "support/request_rows.h"

using namespace test;

TEST(PacketRoute, Requests)
{
    checkStandardRows({
        query(Flag, {"getDataActPacketRoute - enter", "operator() - cb enter"}, radioGetDataActPacketRoute,
              607, {uint8(256, 2)}, {uint8(256, 9)}, packed(0u, 9u)),
        query(Flag, {"getDataIfupPacketRoute - enter", "operator() -  cb enter"}, radioGetDataIfupPacketRoute,
              609, {uint8(256, 2)}, {uint8(256, 8)}, packed(0u, 8u)),
    });
}
