#include "server/FaultPlan.h"

namespace orvale_service {

FaultPlan::FaultPlan(QList<FaultRule> rules) : rules_(std::move(rules)), seen_(rules_.size(), 0) {}

FaultEffect FaultPlan::take(const QString& endpoint, const QString& section) {
    std::lock_guard<std::mutex> guard(mutex_);
    FaultEffect effect;
    for (qsizetype i = 0; i < rules_.size(); ++i) {
        const FaultRule& rule = rules_.at(i);
        if (rule.endpoint != endpoint || rule.section != section) {
            continue;
        }
        ++seen_[i];
        if (rule.nth == 0 || rule.nth == seen_[i]) {
            effect.add(rule);
        }
    }
    return effect;
}

}  // namespace orvale_service
