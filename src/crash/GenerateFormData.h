#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QVariant>

// The fields of a crash-log report, in the order they go on the wire.
using CrashFormFields = QList<QPair<QString, QVariant>>;

// The multipart/form-data body of a crash-log report. Texts and numbers become text parts
// (a bool as the digit 1 or 0), a QUrl of a local file becomes a file part with the file's bytes,
// and any other value is left out, part and all, with a log line.
//
// Unlike the service's upload body, this one is made in memory: crash logs are a few kilobytes,
// and every part is labelled ("text/plain; charset=utf-8", "application/octet-stream") because
// the crash servers read the labels.
QByteArray GenerateFormData(const CrashFormFields& fields, const QByteArray& boundary);
