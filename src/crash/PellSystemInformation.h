#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <optional>

// Facts about the machine for crash-log reports, each absent when this system has no source
// for it or the source cannot be read. The Linux sources:
//
//   machine             uname's machine ("x86_64")
//   model               /sys/class/dmi/id/product_name
//   physicalMemory      MemTotal of /proc/meminfo, in bytes
//   busFrequency        none: always absent
//   cpuFrequency        the first "cpu MHz" of /proc/cpuinfo, in Hz
//   cpuFamily           "cpu family" (x86) or "CPU architecture" (ARM) of /proc/cpuinfo
//   cpuType             none: always absent
//   cpuSubtype          "model" (x86) or "CPU part" (ARM) of /proc/cpuinfo
//   numberOfCPUs        the processors listed in /proc/cpuinfo
//   logicalCPUs         the same
//   physicalCPUs        distinct (physical id, core id) pairs in /proc/cpuinfo, when listed
//   systemVersion       VERSION_ID of /etc/os-release (else /usr/lib/os-release)
//   systemBuildVersion  uname's release, the kernel's
//
// Everything is read once, on construction.
class PellSystemInformation {
public:
    struct Sources {
        QString root;                    // the files above are read below this folder
        std::optional<QString> machine;  // what uname says
        std::optional<QString> kernelRelease;

        static Sources live();
    };

    PellSystemInformation();  // from the live sources
    explicit PellSystemInformation(const Sources& sources);

    static const PellSystemInformation& instance();

    std::optional<QString> machine() const { return m_machine; }
    std::optional<QString> model() const { return m_model; }
    std::optional<quint64> physicalMemory() const { return m_physicalMemory; }
    std::optional<quint64> busFrequency() const { return std::nullopt; }
    std::optional<quint64> cpuFrequency() const { return m_cpuFrequency; }
    std::optional<quint32> cpuFamily() const { return m_cpuFamily; }
    std::optional<quint32> cpuType() const { return std::nullopt; }
    std::optional<quint32> cpuSubtype() const { return m_cpuSubtype; }
    std::optional<quint32> numberOfCPUs() const { return m_logicalCPUs; }
    std::optional<quint32> physicalCPUs() const { return m_physicalCPUs; }
    std::optional<quint32> logicalCPUs() const { return m_logicalCPUs; }
    std::optional<QString> systemVersion() const { return m_systemVersion; }
    std::optional<QString> systemBuildVersion() const { return m_systemBuildVersion; }

    // The facts that are present, as the form fields of a crash-log report ("machine" to
    // "systemBuildVersion", numbers in decimal), in that order.
    QList<QPair<QString, QString>> formFields() const;

private:
    void readCpuInfo(const QString& path);

    std::optional<QString> m_machine;
    std::optional<QString> m_model;
    std::optional<quint64> m_physicalMemory;
    std::optional<quint64> m_cpuFrequency;
    std::optional<quint32> m_cpuFamily;
    std::optional<quint32> m_cpuSubtype;
    std::optional<quint32> m_physicalCPUs;
    std::optional<quint32> m_logicalCPUs;
    std::optional<QString> m_systemVersion;
    std::optional<QString> m_systemBuildVersion;
};
