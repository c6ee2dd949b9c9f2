#include "server/Options.h"

#include <QCommandLineParser>

#include "server/ServiceServer.h"

namespace orvale_service {
namespace {

std::optional<int> intOption(const QCommandLineParser& parser, const QString& name, int lowest,
                             int highest, QString* message) {
    bool ok = false;
    const int value = parser.value(name).toInt(&ok);
    if (!ok || value < lowest || value > highest) {
        *message =
            QStringLiteral("--%1 takes a number from %2 to %3").arg(name).arg(lowest).arg(highest);
        return std::nullopt;
    }
    return value;
}

}  // namespace

std::optional<Options> Options::parse(const QStringList& arguments, QString* message,
                                      bool* helpRequested) {
    QCommandLineParser parser;
    parser.addOptions({
        {"port", "", "N", "0"},
        {"fixture", "", "FILE"},
        {"uploads", "", "DIR"},
        {"record", "", "FILE"},
        {"fault", "", "ENDPOINT=SPEC"},
        {"read-timeout", "", "MS", "5000"},
        {"verbose", ""},
        {{"h", "help"}, ""},
    });
    if (!parser.parse(QStringList{"orvale-service"} + arguments)) {
        *message = parser.errorText();
        return std::nullopt;
    }
    *helpRequested = parser.isSet("help");
    if (*helpRequested) {
        *message = usage();
        return std::nullopt;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *message = QStringLiteral("unexpected argument %1").arg(parser.positionalArguments()[0]);
        return std::nullopt;
    }
    Options options;
    const auto port = intOption(parser, "port", 0, 65535, message);
    const auto timeout = intOption(parser, "read-timeout", 1, 3600000, message);
    if (!port || !timeout) {
        return std::nullopt;
    }
    options.port = *port;
    options.readTimeoutMs = *timeout;
    options.verbose = parser.isSet("verbose");
    options.fixturePath = parser.isSet("fixture") ? parser.value("fixture") : options.fixturePath;
    options.uploadsDir = parser.value("uploads");
    options.recordPath = parser.value("record");
    for (const QString& argument : parser.values("fault")) {
        const auto rule = FaultRule::parse(argument, ServiceServer::endpointNames(), message);
        if (!rule) {
            return std::nullopt;
        }
        options.faults << *rule;
    }
    return options;
}

QString Options::usage() {
    return QStringLiteral(
               "Usage: orvale-service [options]\n"
               "A stand-in of the media-asset web service and the maker's site, on 127.0.0.1 "
               "only.\n"
               "The first line on standard output is \"listening on 127.0.0.1:PORT\".\n"
               "\n"
               "  --port N               port to listen on; 0 (the default) picks a free one\n"
               "  --fixture FILE         users, catalogue and site data (default: the built-in "
               "one)\n"
               "  --uploads DIR          where uploaded files and index.jsonl go (default: a new\n"
               "                         folder in the temporary folder, named on standard error)\n"
               "  --record FILE          append one JSON line per request to FILE\n"
               "  --fault ENDPOINT=SPEC  misbehave on an endpoint; may be given many times\n"
               "  --read-timeout MS      how long a request body may stall (default 5000)\n"
               "  --verbose              one line per request on standard error\n"
               "  --help                 this text\n"
               "\n"
               "ENDPOINT is one of %1,\n"
               "or select_all:SECTION for one catalogue section.\n"
               "SPEC is a comma-separated list of:\n"
               "  status:N     answer with HTTP status N\n"
               "  delay:MS     wait before answering\n"
               "  nonjson      answer with a body that is not JSON\n"
               "  wrongtype    answer JSON whose values all have unexpected types\n"
               "  type:TYPE    label the answer with content type TYPE\n"
               "  drop:N       close the connection, unanswered, after N bytes of the request "
               "body\n"
               "  nth:K        only the Kth request to the endpoint\n"
               "Example: --fault put_project_file=status:500,nth:2\n")
        .arg(ServiceServer::endpointNames().join(QLatin1String(", ")));
}

}  // namespace orvale_service
