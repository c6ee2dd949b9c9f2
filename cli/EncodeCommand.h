#pragma once

#include "JobCommand.h"

// orvale-cli encode [--out DIR] [--preset SIZE] [--json] PATH...
// Runs one local-encode job through the job manager, as "Encode files" does.
class EncodeCommand : public JobCommand {
    Q_OBJECT

public:
    using JobCommand::JobCommand;
    ~EncodeCommand() override;

    int parse(const QStringList& arguments) override;
    void start() override;

private:
    void filesGathered() override;
    void interrupted() override;
    void observeJob();
    void onPercent(float percent);
    void onDiskFull();
    void onJobFinished();
    void printSummary();
    QString currentFileName() const;

    QStringList paths_;
    QString outputDirectory_;
    QString presetSize_;
    bool json_ = false;
};
