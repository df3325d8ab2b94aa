// SPDX-License-Identifier: MIT
#include "tests/e2e/loopback_sshd.h"

#include "tests/support/wait_until.h"

#include <cstdlib>
#include <fstream>

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

sockaddr_in loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// A port that nobody listens on just now.
int free_port() {
    const int probe = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = loopback(0);
    socklen_t length = sizeof address;
    (void)bind(probe, reinterpret_cast<const sockaddr*>(&address), length);
    (void)getsockname(probe, reinterpret_cast<sockaddr*>(&address), &length);
    close(probe);
    return ntohs(address.sin_port);
}

bool listens(int port) {
    const int probe = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = loopback(port);
    const bool connected = connect(probe, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(probe);
    return connected;
}

std::string own_name() {
    const passwd* const entry = getpwuid(geteuid());
    return entry != nullptr ? entry->pw_name : "root";
}

}  // namespace

LoopbackSshd::LoopbackSshd(const std::filesystem::path& folder,
                           const std::map<std::string, std::string>& environment)
    : folder_(folder / "sshd") {
    std::filesystem::create_directory(folder_);
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all);
    const std::string at = folder_.string() + '/';
    const int port = free_port();
    for (const char* key : {"host_key", "user_key"}) {
        EXPECT_EQ(std::system(("ssh-keygen -q -t ed25519 -N '' -f " + at + key).c_str()), 0);
    }
    std::ofstream(at + "sshd_config")
        << "ListenAddress 127.0.0.1:" << port << "\nHostKey " << at << "host_key\nAuthorizedKeysFile " << at
        << "user_key.pub\nPidFile none\nStrictModes no\nUsePAM no\n"
           "PermitRootLogin yes\nPasswordAuthentication no\n"
           "Subsystem sftp internal-sftp\n";
    std::ofstream(at + "ssh_config") << "Host loopback\n  HostName 127.0.0.1\n  Port " << port
                                     << "\n  IdentityFile " << at << "user_key\n  IdentitiesOnly yes\n"
                                     << "  StrictHostKeyChecking no\n  UserKnownHostsFile /dev/null\n"
                                        "  LogLevel ERROR\n  User "
                                     << own_name() << '\n';
    if (geteuid() == 0) {
        std::filesystem::create_directory("/run/sshd");  // it asks for that when it runs as root
    }
    server_.emplace(Command{.arguments = {"/usr/sbin/sshd", "-D", "-e", "-f", at + "sshd_config"},
                            .environment = environment,
                            .directory = folder_,
                            .output = at + "log"});
    EXPECT_TRUE(wait_until([&] { return listens(port); }));
}

std::string LoopbackSshd::options() const { return "-F " + (folder_ / "ssh_config").string(); }
