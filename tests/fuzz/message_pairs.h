// moxc's messages as key and translation pairs, the later of two equal keys kept: what the
// reader fuzz targets compare after a round trip.
#pragma once
#include "tools/moxc/messages.h"
#include <map>
#include <string>

inline std::map<std::string, std::string> Pairs(const moxc::MessageSet& set)
{
    std::map<std::string, std::string> pairs;
    for (const moxc::Message& message : set.messages) pairs[message.key] = message.value;
    return pairs;
}
