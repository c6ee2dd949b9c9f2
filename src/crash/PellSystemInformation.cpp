#include "crash/PellSystemInformation.h"

#include <sys/utsname.h>

#include <QDir>
#include <QFile>
#include <QSet>

namespace {

std::optional<QByteArray> readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

std::optional<QString> nonEmpty(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional<QString>(text);
}

// One "key : value" line of /proc/cpuinfo; the key may be padded with tabs.
struct CpuInfoLine {
    QByteArray key;
    QByteArray value;
};

std::optional<CpuInfoLine> cpuInfoLine(const QByteArray& line) {
    const qsizetype colon = line.indexOf(':');
    if (colon < 0) {
        return std::nullopt;
    }
    return CpuInfoLine{line.left(colon).trimmed(), line.mid(colon + 1).trimmed()};
}

// Decimal, or hexadecimal with 0x as ARM writes its part numbers.
std::optional<quint32> cpuNumber(const QByteArray& text) {
    bool ok = false;
    const quint32 value = text.toUInt(&ok, 0);
    return ok ? std::optional<quint32>(value) : std::nullopt;
}

std::optional<quint64> memTotalBytes(const QByteArray& meminfo) {
    for (const QByteArray& line : meminfo.split('\n')) {
        if (!line.startsWith("MemTotal:")) {
            continue;
        }
        const QList<QByteArray> parts = line.mid(9).simplified().split(' ');
        bool ok = false;
        const quint64 kibibytes = parts.value(0).toULongLong(&ok);
        return ok && parts.value(1) == "kB" ? std::optional<quint64>(kibibytes * 1024)
                                            : std::nullopt;
    }
    return std::nullopt;
}

std::optional<QString> osReleaseVersion(const QByteArray& osRelease) {
    for (const QByteArray& line : osRelease.split('\n')) {
        if (!line.startsWith("VERSION_ID=")) {
            continue;
        }
        QByteArray value = line.mid(11).trimmed();
        if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
            value.back() == value.front()) {
            value = value.mid(1, value.size() - 2);
        }
        return nonEmpty(QString::fromUtf8(value));
    }
    return std::nullopt;
}

}  // namespace

PellSystemInformation::Sources PellSystemInformation::Sources::live() {
    Sources sources{QStringLiteral("/"), std::nullopt, std::nullopt};
    struct utsname system = {};
    if (uname(&system) == 0) {
        sources.machine = nonEmpty(QString::fromUtf8(system.machine));
        sources.kernelRelease = nonEmpty(QString::fromUtf8(system.release));
    }
    return sources;
}

PellSystemInformation::PellSystemInformation() : PellSystemInformation(Sources::live()) {}

PellSystemInformation::PellSystemInformation(const Sources& sources)
    : m_machine(sources.machine), m_systemBuildVersion(sources.kernelRelease) {
    const QDir root(sources.root);
    if (const auto product =
            readFile(root.filePath(QStringLiteral("sys/class/dmi/id/product_name")))) {
        m_model = nonEmpty(QString::fromUtf8(product->trimmed()));
    }
    if (const auto meminfo = readFile(root.filePath(QStringLiteral("proc/meminfo")))) {
        m_physicalMemory = memTotalBytes(*meminfo);
    }
    readCpuInfo(root.filePath(QStringLiteral("proc/cpuinfo")));
    for (const char* path : {"etc/os-release", "usr/lib/os-release"}) {
        if (const auto osRelease = readFile(root.filePath(QLatin1String(path)))) {
            m_systemVersion = osReleaseVersion(*osRelease);
            break;
        }
    }
}

const PellSystemInformation& PellSystemInformation::instance() {
    static const PellSystemInformation information;
    return information;
}

void PellSystemInformation::readCpuInfo(const QString& path) {
    const auto cpuinfo = readFile(path);
    if (!cpuinfo) {
        return;
    }
    quint32 processors = 0;
    QSet<QByteArray> cores;
    bool everyProcessorHasCore = true;
    QByteArray physicalId;
    QByteArray coreId;
    // A blank line ends a processor's block, and so does the end of the text.
    const auto endProcessor = [&] {
        everyProcessorHasCore = everyProcessorHasCore && !physicalId.isNull() && !coreId.isNull();
        cores.insert(physicalId + '/' + coreId);
        physicalId = coreId = QByteArray();
    };
    for (const QByteArray& text : cpuinfo->split('\n')) {
        const auto line = cpuInfoLine(text);
        if (!line) {
            continue;
        }
        if (line->key == "processor") {
            if (processors++ > 0) {
                endProcessor();
            }
        } else if (line->key == "physical id") {
            physicalId = line->value;
        } else if (line->key == "core id") {
            coreId = line->value;
        } else if (line->key == "cpu MHz" && !m_cpuFrequency) {
            bool ok = false;
            const double megahertz = line->value.toDouble(&ok);
            m_cpuFrequency = ok ? std::optional<quint64>(qRound64(megahertz * 1e6)) : std::nullopt;
        } else if ((line->key == "cpu family" || line->key == "CPU architecture") && !m_cpuFamily) {
            m_cpuFamily = cpuNumber(line->value);
        } else if ((line->key == "model" || line->key == "CPU part") && !m_cpuSubtype) {
            m_cpuSubtype = cpuNumber(line->value);
        }
    }
    if (processors == 0) {
        return;
    }
    endProcessor();
    m_logicalCPUs = processors;
    if (everyProcessorHasCore) {
        m_physicalCPUs = static_cast<quint32>(cores.size());
    }
}

QList<QPair<QString, QString>> PellSystemInformation::formFields() const {
    QList<QPair<QString, QString>> fields;
    const auto add = [&fields](const char* name, const auto& value) {
        if (!value) {
            return;
        }
        if constexpr (std::is_same_v<std::decay_t<decltype(*value)>, QString>) {
            fields.append({QLatin1String(name), *value});
        } else {
            fields.append({QLatin1String(name), QString::number(*value)});
        }
    };
    add("machine", machine());
    add("model", model());
    add("physicalMemory", physicalMemory());
    add("busFrequency", busFrequency());
    add("CPUFrequency", cpuFrequency());
    add("CPUFamily", cpuFamily());
    add("CPUType", cpuType());
    add("CPUSubtype", cpuSubtype());
    add("numberOfCPUs", numberOfCPUs());
    add("physicalCPUs", physicalCPUs());
    add("logicalCPUs", logicalCPUs());
    add("systemVersion", systemVersion());
    add("systemBuildVersion", systemBuildVersion());
    return fields;
}
