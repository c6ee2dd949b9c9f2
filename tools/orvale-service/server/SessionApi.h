#pragma once

#include "server/Endpoint.h"

namespace orvale_service {

class Accounts;

// "get_token/" and "get_permissions": the login and the user's rights.
class SessionApi {
public:
    explicit SessionApi(Accounts& accounts);

    Endpoints endpoints();
    void login(Exchange& exchange);
    void permissions(Exchange& exchange);

private:
    Accounts& accounts_;
};

}  // namespace orvale_service
