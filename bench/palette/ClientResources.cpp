#include "ClientResources.h"

#include <cstddef>
#include <vector>

#include <xcb/res.h>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

std::vector<std::uint32_t> clientsOf(X11Connection& connection, std::uint32_t processIdentifier) {
    const xcb_res_client_id_spec_t everyone{.client = 0, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const XcbOwned<xcb_res_query_client_ids_reply_t> reply(xcb_res_query_client_ids_reply(
        connection.handle(), xcb_res_query_client_ids(connection.handle(), 1, &everyone), nullptr));
    std::vector<std::uint32_t> clients;
    if (!reply) {
        return clients;
    }
    for (auto ids = xcb_res_query_client_ids_ids_iterator(reply.get()); ids.rem > 0;
         xcb_res_client_id_value_next(&ids)) {
        if (xcb_res_client_id_value_value_length(ids.data) > 0 &&
            *xcb_res_client_id_value_value(ids.data) == processIdentifier) {
            clients.push_back(ids.data->spec.client);
        }
    }
    return clients;
}

std::string nameOfAtom(X11Connection& connection, xcb_atom_t atom) {
    const XcbOwned<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(connection.handle(), xcb_get_atom_name(connection.handle(), atom), nullptr));
    return reply ? std::string(xcb_get_atom_name_name(reply.get()),
                               static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get())))
                 : std::string();
}

} // namespace

std::map<std::string, std::uint32_t> clientResources(X11Connection& connection,
                                                     std::uint32_t processIdentifier) {
    std::map<std::string, std::uint32_t> counts;
    for (const std::uint32_t client : clientsOf(connection, processIdentifier)) {
        const XcbOwned<xcb_res_query_client_resources_reply_t> reply(xcb_res_query_client_resources_reply(
            connection.handle(), xcb_res_query_client_resources(connection.handle(), client), nullptr));
        if (!reply) {
            continue;
        }
        for (auto types = xcb_res_query_client_resources_types_iterator(reply.get()); types.rem > 0;
             xcb_res_type_next(&types)) {
            counts[nameOfAtom(connection, types.data->resource_type)] += types.data->count;
        }
    }
    return counts;
}

} // namespace tovrel
