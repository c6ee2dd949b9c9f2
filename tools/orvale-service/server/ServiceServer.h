#pragma once

#include <httplib.h>

#include <QString>
#include <QStringList>

#include "server/Accounts.h"
#include "server/CatalogueApi.h"
#include "server/CrashApi.h"
#include "server/FaultPlan.h"
#include "server/JsonLinesFile.h"
#include "server/Options.h"
#include "server/RequestPipeline.h"
#include "server/SessionApi.h"
#include "server/SiteApi.h"
#include "server/UploadApi.h"
#include "server/UploadStore.h"

namespace orvale_service {

class Fixture;

// The whole service on one loopback port: the service API below any address prefix (with or
// without "/v2"), the maker's site, the crash endpoints, and a JSON 404 for everything else.
class ServiceServer {
public:
    ServiceServer(const Options& options, const Fixture& fixture);

    // The names --fault accepts.
    static QStringList endpointNames();

    // Opens the record and the upload folder and binds the port; false with a message if not.
    bool start(QString* error);
    int port() const { return port_; }
    QString uploadsDirectory() const { return store_.directory(); }
    // Serves until stop() is called, from any thread.
    void run();
    void stop();

private:
    void addRoutes();
    void route(const Endpoint& endpoint);

    Options options_;
    Accounts accounts_;
    SessionApi session_;
    CatalogueApi catalogue_;
    UploadApi uploads_;
    SiteApi site_;
    CrashApi crash_;
    FaultPlan faults_;
    UploadStore store_;
    JsonLinesFile record_;
    RequestPipeline pipeline_;
    httplib::Server http_;
    int port_ = -1;
};

}  // namespace orvale_service
