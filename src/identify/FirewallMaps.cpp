#include "identify/FirewallMaps.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>
#include <utility>

#include <arpa/inet.h>
#include <linux/netfilter.h>
#include <linux/netfilter/nf_tables.h>
#include <linux/netfilter/nfnetlink.h>
#include <linux/netlink.h>
#include <sys/socket.h>

namespace veldmark {

namespace {

constexpr std::size_t batchLimit = 400; // changes in one transaction
// NFTA_TABLE_NAME, NFTA_CHAIN_TABLE, NFTA_RULE_TABLE, NFTA_SET_TABLE and the elements' are all 1
constexpr std::size_t tableAttribute = 1;
static_assert(NFTA_TABLE_NAME == tableAttribute && NFTA_CHAIN_TABLE == tableAttribute
              && NFTA_RULE_TABLE == tableAttribute && NFTA_SET_TABLE == tableAttribute
              && NFTA_SET_ELEM_LIST_TABLE == tableAttribute);

template <typename T> std::string_view bytesOf(const T &value)
{
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

std::string padded(std::string text)
{
    text.resize(NLA_ALIGN(text.size()), '\0');
    return text;
}

std::string attribute(std::uint16_t type, std::string_view value)
{
    const nlattr head{static_cast<std::uint16_t>(sizeof(nlattr) + value.size()), type};
    return padded(std::string(bytesOf(head)).append(value));
}

std::string nest(std::uint16_t type, const std::string &inside)
{
    return attribute(static_cast<std::uint16_t>(type | NLA_F_NESTED), inside);
}

std::string name(std::uint16_t type, const std::string &text)
{
    return attribute(type, std::string_view(text.c_str(), text.size() + 1));
}

std::string message(std::uint16_t type, std::uint16_t flags, std::uint8_t family,
                    std::uint16_t resource, const std::string &attributes)
{
    nlmsghdr head{};
    nfgenmsg about{};
    head.nlmsg_len = static_cast<std::uint32_t>(sizeof head + sizeof about + attributes.size());
    head.nlmsg_type = type;
    head.nlmsg_flags = static_cast<std::uint16_t>(NLM_F_REQUEST | flags);
    about.nfgen_family = family;
    about.version = NFNETLINK_V0;
    about.res_id = htons(resource);
    return padded(std::string(bytesOf(head)).append(bytesOf(about)).append(attributes));
}

constexpr std::uint16_t command(int type)
{
    return static_cast<std::uint16_t>(NFNL_SUBSYS_NFTABLES << 8 | type);
}

std::string mapName(MapChange::Map map)
{
    switch (map) {
    case MapChange::Map::sessions:
        return "sessions";
    case MapChange::Map::applications:
        return "applications";
    case MapChange::Map::addresses:
        break;
    }
    return "addresses";
}

std::string elementOf(const MapChange &change)
{
    std::string inside;
    const auto value = [](std::uint16_t type, std::string_view bytes) {
        return nest(type, attribute(NFTA_DATA_VALUE, bytes));
    };
    const bool isAddress = change.map == MapChange::Map::addresses;
    inside += isAddress ? value(NFTA_SET_ELEM_KEY, bytesOf(change.mark))
                        : value(NFTA_SET_ELEM_KEY, bytesOf(change.group));
    if (change.action == MapChange::Action::add) {
        const std::uint32_t address = htonl(change.mark);
        inside += value(NFTA_SET_ELEM_DATA, isAddress ? bytesOf(address) : bytesOf(change.mark));
    }
    return nest(NFTA_SET_ELEM_LIST_ELEMENTS, nest(NFTA_LIST_ELEM, inside));
}

Descriptor netlink(std::uint32_t groups)
{
    Descriptor made(socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_NETFILTER));
    sockaddr_nl own{};
    own.nl_family = AF_NETLINK;
    own.nl_groups = groups;
    if (made && bind(made.number(), reinterpret_cast<const sockaddr *>(&own), sizeof own) != 0)
        return Descriptor();
    return made;
}

// Calls `each` with every waiting message. False when messages were lost.
template <typename Each> bool receive(int socket, Each each)
{
    alignas(nlmsghdr) std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t size = recv(socket, buffer.data(), buffer.size(), 0);
        if (size < 0)
            return errno == EAGAIN || errno == EINTR;
        std::size_t at = 0;
        while (at + sizeof(nlmsghdr) <= static_cast<std::size_t>(size)) {
            nlmsghdr head;
            std::memcpy(&head, buffer.data() + at, sizeof head);
            if (head.nlmsg_len < sizeof head
                || head.nlmsg_len > static_cast<std::size_t>(size) - at)
                break;
            each(head,
                 std::string_view(buffer.data() + at + sizeof head, head.nlmsg_len - sizeof head));
            at += NLMSG_ALIGN(head.nlmsg_len);
        }
    }
}

std::string_view tableOf(std::string_view body)
{
    if (body.size() < sizeof(nfgenmsg))
        return {};
    body.remove_prefix(sizeof(nfgenmsg));
    while (body.size() >= sizeof(nlattr)) {
        nlattr head;
        std::memcpy(&head, body.data(), sizeof head);
        if (head.nla_len < sizeof head || head.nla_len > body.size())
            return {};
        if ((head.nla_type & NLA_TYPE_MASK) == tableAttribute && head.nla_len > sizeof head)
            return body.substr(sizeof head, head.nla_len - sizeof head - 1);
        body.remove_prefix(std::min<std::size_t>(NLA_ALIGN(head.nla_len), body.size()));
    }
    return {};
}

bool takesAway(std::uint16_t type)
{
    return type == command(NFT_MSG_DELTABLE) || type == command(NFT_MSG_DELCHAIN)
        || type == command(NFT_MSG_DELRULE) || type == command(NFT_MSG_DELSET)
        || type == command(NFT_MSG_DELSETELEM);
}

} // namespace

FirewallMaps::FirewallMaps(std::string table)
    : m_table(std::move(table)),
      m_commands(netlink(0)),
      m_notices(netlink(1U << (NFNLGRP_NFTABLES - 1)))
{
    sockaddr_nl own{};
    socklen_t size = sizeof own;
    if (m_commands
        && getsockname(m_commands.number(), reinterpret_cast<sockaddr *>(&own), &size) == 0)
        m_port = own.nl_pid;
    const int room = 1 << 20;
    setsockopt(m_notices.number(), SOL_SOCKET, SO_RCVBUF, &room, sizeof room);
}

// When the kernel has read the messages, it has applied all of them or refused.
bool FirewallMaps::send(const std::string &messages)
{
    const std::string batch = message(NFNL_MSG_BATCH_BEGIN, 0, AF_UNSPEC, NFNL_SUBSYS_NFTABLES, {})
        + messages + message(NFNL_MSG_BATCH_END, 0, AF_UNSPEC, NFNL_SUBSYS_NFTABLES, {});
    if (::send(m_commands.number(), batch.data(), batch.size(), 0)
        != static_cast<ssize_t>(batch.size()))
        return false;
    bool taken = true;
    const bool complete = receive(
        m_commands.number(), [&taken](const nlmsghdr &head, std::string_view body) {
            nlmsgerr error{};
            if (head.nlmsg_type != NLMSG_ERROR || body.size() < sizeof error)
                return;
            std::memcpy(&error, body.data(), sizeof error);
            taken = taken && error.error == 0;
        });
    return complete && taken;
}

bool FirewallMaps::apply(const MapChanges &changes)
{
    std::string messages;
    std::size_t many = 0;
    for (const MapChange &change : changes) {
        const bool adds = change.action == MapChange::Action::add;
        messages += message(command(adds ? NFT_MSG_NEWSETELEM : NFT_MSG_DELSETELEM),
                            adds ? NLM_F_CREATE : 0, NFPROTO_INET, 0,
                            name(NFTA_SET_ELEM_LIST_TABLE, m_table)
                                + name(NFTA_SET_ELEM_LIST_SET, mapName(change.map))
                                + elementOf(change));
        if (++many % batchLimit == 0 && !send(std::exchange(messages, std::string())))
            return false;
    }
    return messages.empty() || send(messages);
}

void FirewallMaps::removeTable()
{
    // Deleting a missing table is an error; creating it first prevents that.
    const std::string named = name(NFTA_TABLE_NAME, m_table);
    static_cast<void>(send(message(command(NFT_MSG_NEWTABLE), NLM_F_CREATE, NFPROTO_INET, 0, named)
                           + message(command(NFT_MSG_DELTABLE), 0, NFPROTO_INET, 0, named)));
}

bool FirewallMaps::takeLoss()
{
    bool lost = false;
    const bool complete = receive(m_notices.number(),
                                  [this, &lost](const nlmsghdr &head, std::string_view body) {
                                      lost = lost
                                          || (takesAway(head.nlmsg_type) && head.nlmsg_pid != m_port
                                              && tableOf(body) == m_table);
                                  });
    return lost || !complete;
}

} // namespace veldmark
