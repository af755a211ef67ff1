/// The requests that still wait for their answer, by transaction.
#pragma once

#include "host/clock.h"
#include "vorn/vorn_msg.h"

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>

namespace host {

struct PendingRequest {
    vorn_msg_hdr_t header; ///< the request's, with the transaction it was given
    vorn_msg_cb callback;
    void* user;
    Clock::TimePoint deadline;
};

/// Not thread-safe. Requests are expected to be added in the order of their deadlines.
class PendingTable {
public:
    PendingTable();

    /// Every transaction is in use.
    bool isFull() const { return mCount == kTransactions; }

    /// Takes a request into the table, which is not full, and returns its new transaction. Transactions are
    /// used in turn, so that it takes long until a late answer could be taken for another request's.
    uint16_t add(const PendingRequest& request);

    /// The request with this transaction, until the table changes; null when there is none.
    const PendingRequest* find(uint16_t transaction) const;

    // Each of these takes one request out of the table, if there is such a one.
    std::optional<PendingRequest> take(uint16_t transaction);
    std::optional<PendingRequest> takeOldest() { return take(mOldest); }
    std::optional<PendingRequest> takeOverdue(Clock::TimePoint now);

    /// TimePoint::max() when nothing is pending.
    Clock::TimePoint nextDeadline() const;

private:
    static constexpr uint32_t kTransactions = std::numeric_limits<uint16_t>::max();

    /// The entries in use form a list from the oldest to the newest.
    struct Entry {
        PendingRequest request;
        bool inUse;
        uint16_t older;
        uint16_t newer;
    };
    struct Free {
        void operator()(Entry* entries) const { std::free(entries); }
    };

    std::unique_ptr<Entry[], Free> mEntries; ///< one for each transaction; none has the number 0
    uint16_t mLastGiven = 0;
    uint16_t mOldest = 0;
    uint16_t mNewest = 0;
    uint32_t mCount = 0;
};

} // namespace host
