#pragma once

#include <QList>
#include <mutex>

#include "server/FaultRule.h"

namespace orvale_service {

// The faults asked for on the command line, with a count per rule of the requests it has seen,
// so that "nth:2" hits exactly the second request to its endpoint.
class FaultPlan {
public:
    FaultPlan() = default;
    explicit FaultPlan(QList<FaultRule> rules);

    // The rules for the endpoint as a whole (section empty), or those for one of its sections.
    // Each call counts one request for every rule it matches.
    FaultEffect take(const QString& endpoint, const QString& section);

private:
    std::mutex mutex_;
    QList<FaultRule> rules_;
    QList<int> seen_;
};

}  // namespace orvale_service
