#pragma once

#include <string>

namespace bench
{

// A service's configuration: a little of everything.
inline std::string serviceText(unsigned number)
{
    const std::string digits = std::to_string(number);
    return "[[service]]\n"
           "name = \"collector-" +
           digits +
           "\"  # as systemd knows it\n"
           "command = '/usr/bin/collectd --config \"/etc/collectd.conf\"'\n"
           "enabled = true\n"
           "priority = " +
           std::to_string(number % 40) +
           "\n"
           "ports = [8080, 8443, 9_000]\n"
           "timeout = 2.5\n"
           "limits = { memory = \"128M\", files = 1_024, cpu = 0.5 }\n"
           "started = 2024-03-14T09:26:53Z\n"
           "env.LANG = \"en_US.UTF-8\"\n"
           "env.HOME = \"/var/lib/collectd\"\n"
           "\n"
           "[service.restart]\n"
           "policy = \"on-failure\"\n"
           "delays = [ 0.5, 1.0, 5.0, 30.0 ]\n"
           "\n";
}

} // namespace bench
