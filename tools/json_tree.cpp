#include "json_tree.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace tool
{

JsonTree::Node JsonTree::find(Node table, const std::string& key) const
{
    const auto found = keys_.find({table, key});
    return found != keys_.end() ? found->second : none;
}

JsonTree::Node JsonTree::add(Node table, const std::string& key, Kind kind, Origin origin)
{
    const Node node = append(table, kind, origin);
    const auto place = keys_.emplace(std::pair(table, key), node).first;
    nodes_[node].key = &place->first.second;
    return node;
}

JsonTree::Node JsonTree::addElement(Node array, Kind kind, Origin origin)
{
    const Node previous = nodes_[array].last;
    const Node node = append(array, kind, origin);
    nodes_[node].index = previous == none ? 0 : nodes_[previous].index + 1;
    return node;
}

JsonTree::Node JsonTree::append(Node parent, Kind kind, Origin origin)
{
    const Node node = nodes_.size();
    Content& content = nodes_.emplace_back();
    content.kind = kind;
    content.origin = origin;
    content.parent = parent;
    Content& around = nodes_[parent];
    (around.first == none ? around.first : nodes_[around.last].next) = node;
    around.last = node;
    return node;
}

std::string JsonTree::pathOf(Node node) const
{
    std::vector<Node> nodes;
    for (; node != document; node = nodes_[node].parent)
    {
        nodes.push_back(node);
    }
    std::string path;
    for (auto step = nodes.rbegin(); step != nodes.rend(); ++step)
    {
        const Content& content = nodes_[*step];
        if (content.key != nullptr)
        {
            path += (path.empty() ? "" : ".") + writtenKey(*content.key);
        }
        else
        {
            path += '[' + std::to_string(content.index) + ']';
        }
    }
    return path;
}

std::string jsonString(const std::string& text)
{
    const auto replace = nlohmann::json::error_handler_t::replace;
    return nlohmann::json(text).dump(-1, ' ', false, replace);
}

std::string writtenKey(const std::string& key)
{
    const char* const bare = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";
    const bool isBare = !key.empty() && key.find_first_not_of(bare) == std::string::npos;
    return isBare ? key : jsonString(key);
}

} // namespace tool
