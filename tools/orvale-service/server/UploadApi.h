#pragma once

#include <QJsonObject>

#include "server/Endpoint.h"

namespace orvale_service {

class Accounts;
class Fixture;
struct UploadSummary;

// "put_project_file/" and "put_media_library/": one file per multipart post. A body whose
// framing or length is off is answered 400, a bad token 401; fields the service would not take
// are a refusal in the answer ("status" "error" with a "message"), as a real service refuses.
class UploadApi {
public:
    UploadApi(const Fixture& fixture, const Accounts& accounts);

    Endpoints endpoints();
    void putProjectFile(Exchange& exchange);
    void putMediaLibrary(Exchange& exchange);

private:
    std::optional<QJsonObject> admit(Exchange& exchange);
    void checkProjectFields(Exchange& exchange, const QJsonObject& user) const;
    void checkMediaFields(Exchange& exchange, const QJsonObject& user) const;
    void answer(Exchange& exchange);

    const Fixture& fixture_;
    const Accounts& accounts_;
};

}  // namespace orvale_service
