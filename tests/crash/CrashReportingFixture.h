#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include "crash/CrashReportLauncher.h"
#include "support/EventLoop.h"
#include "support/ScopedEnvironment.h"
#include "support/ServiceProcess.h"

// Crash reporting across starts of the application: settings and every folder in a temporary
// one, and the crash-report server's host pointed at an orvale-service of its own.
class CrashReportingFixture : public testing::Test {
protected:
    explicit CrashReportingFixture(const QStringList& serviceArguments = {})
        : m_service(serviceArguments),
          m_server("ORVALE_CRASH_SERVER", m_service.host().toUtf8()),
          m_settings(m_dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat),
          m_crashReporter(reporterOptions()),
          m_manager(m_settings) {}

    void SetUp() override {
        ASSERT_TRUE(m_service.isRunning()) << m_service.errorString().toStdString();
    }

    CrashReporter::Options reporterOptions() const {
        CrashReporter::Options options = CrashReporter::Options::defaults();
        options.pendingRecordFolder = m_dir.filePath(QStringLiteral("pending"));
        options.crashLogDirectory = m_dir.filePath(QStringLiteral("DiagnosticReports"));
        return options;
    }

    QString logFolder() const { return reporterOptions().crashLogDirectory; }

    PellCrashReporter::Options finderOptions() const {
        return {{logFolder()}, ApplicationInfo::current()};
    }

    QString writeLog(const QString& name, const QDateTime& modified,
                     const QByteArray& text = "Process: Orvale [42]\n") const {
        const QString path = QDir(logFolder()).filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.flush();  // a later flush would set the time anew
        EXPECT_TRUE(file.setFileTime(modified, QFileDevice::FileModificationTime));
        return path;
    }

    // A log newer than the last one reported, so that this start sends it.
    void leaveNewCrashLog() {
        writeLog(QStringLiteral("Orvale_2026-03-01-100000_host.crash"),
                 QDateTime::currentDateTimeUtc());
        m_settings.setValue(CrashReportSettings::kLastCrashReportDateKey,
                            QDateTime::currentDateTimeUtc().addDays(-1));
    }

    std::optional<QDateTime> storedDate() {
        return CrashReportSettings(m_settings).lastCrashReportDate();
    }

    std::unique_ptr<CrashReportLauncher> launch() {
        auto launcher = std::make_unique<CrashReportLauncher>(CrashReportLauncher::Parts{
            m_settings, m_center, m_crashReporter, m_manager, finderOptions()});
        launcher->start();
        return launcher;
    }

    QTemporaryDir m_dir;
    ServiceProcess m_service;
    ScopedEnvironment m_server;
    QSettings m_settings;
    NotificationCenter m_center;
    CrashReporter m_crashReporter;
    CrashReportManager m_manager;
};
