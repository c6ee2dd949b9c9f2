#pragma once

#include "server/Endpoint.h"

namespace orvale_service {

// The two crash channels: system crash logs posted as a multipart form by the crash-log sender,
// and the in-process crash summary posted as a form to "/tarn/cr/api/report/add". Both only
// record what came; the app ignores the answers.
class CrashApi {
public:
    Endpoints endpoints();
    void crashLog(Exchange& exchange) const;
    void reportAdd(Exchange& exchange) const;
};

}  // namespace orvale_service
