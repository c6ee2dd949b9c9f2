#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <fmt/format.h>

// Lets log lines take Qt strings and URLs as format arguments.
template <>
struct fmt::formatter<QString> : fmt::formatter<std::string_view> {
    template <typename FormatContext>
    auto format(const QString& text, FormatContext& ctx) const {
        const QByteArray utf8 = text.toUtf8();
        return fmt::formatter<std::string_view>::format(
            std::string_view(utf8.constData(), static_cast<size_t>(utf8.size())), ctx);
    }
};

template <>
struct fmt::formatter<QByteArray> : fmt::formatter<std::string_view> {
    template <typename FormatContext>
    auto format(const QByteArray& bytes, FormatContext& ctx) const {
        return fmt::formatter<std::string_view>::format(
            std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())), ctx);
    }
};

template <>
struct fmt::formatter<QUrl> : fmt::formatter<QString> {
    template <typename FormatContext>
    auto format(const QUrl& url, FormatContext& ctx) const {
        return fmt::formatter<QString>::format(url.toString(), ctx);
    }
};
