#include "pending_table.h"

#include <new>

namespace host {

// calloc, since the system then supplies the memory of an entry when its transaction is first used.
PendingTable::PendingTable() : mEntries(static_cast<Entry*>(std::calloc(kTransactions + 1, sizeof(Entry))))
{
    if (!mEntries) {
        throw std::bad_alloc();
    }
}

uint16_t PendingTable::add(const PendingRequest& request)
{
    do {
        ++mLastGiven;
    } while (mLastGiven == 0 || mEntries[mLastGiven].inUse);
    const uint16_t transaction = mLastGiven;

    Entry& entry = mEntries[transaction];
    entry = {request, true, mNewest, 0};
    entry.request.header.tx_id = transaction;
    (mNewest != 0 ? mEntries[mNewest].newer : mOldest) = transaction;
    mNewest = transaction;
    ++mCount;
    return transaction;
}

const PendingRequest* PendingTable::find(uint16_t transaction) const
{
    const Entry& entry = mEntries[transaction];
    return entry.inUse ? &entry.request : nullptr;
}

std::optional<PendingRequest> PendingTable::take(uint16_t transaction)
{
    Entry& entry = mEntries[transaction];
    if (!entry.inUse) {
        return std::nullopt;
    }
    entry.inUse = false;
    (entry.older != 0 ? mEntries[entry.older].newer : mOldest) = entry.newer;
    (entry.newer != 0 ? mEntries[entry.newer].older : mNewest) = entry.older;
    --mCount;
    return entry.request;
}

std::optional<PendingRequest> PendingTable::takeOverdue(Clock::TimePoint now)
{
    return nextDeadline() <= now ? takeOldest() : std::nullopt;
}

Clock::TimePoint PendingTable::nextDeadline() const
{
    return mOldest != 0 ? mEntries[mOldest].request.deadline : Clock::TimePoint::max();
}

} // namespace host
