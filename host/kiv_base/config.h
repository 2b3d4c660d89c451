// The host's configuration tree: each configuration path ("kiv_skin\style") is one XML file
// under the executable's "cfg" folder ("cfg\kiv_skin\style.xml"). Nodes are the file's elements;
// their attributes are reported in the order the file writes them.
#pragma once
#include "kiv_base/kiv_base_api.h"
#include <list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class TiXmlElement;

namespace kiv_base {

class KIV_BASE_API CCfgNode {
public:
    CCfgNode(const CCfgNode&) = delete;
    CCfgNode& operator=(const CCfgNode&) = delete;
    ~CCfgNode();

    const char* GetNodeName() const { return m_name.c_str(); }
    // Appends the attribute names, in the node's own order.
    void GetAttributeNames(std::list<std::string>& names) const;
    // The value of the first attribute called name; "" when there is none.
    const char* GetAttribute(const char* name) const;

private:
    friend class CConfig;
    CCfgNode(const TiXmlElement& element, CCfgNode* parent, size_t index);

    std::string m_name;
    std::vector<std::pair<std::string, std::string>> m_attributes;
    std::vector<std::unique_ptr<CCfgNode>> m_children;
    CCfgNode* m_parent;
    size_t m_index;  // position among the parent's children
};

// One loaded configuration file.
class KIV_BASE_API CConfig {
public:
    CConfig(const CConfig&) = delete;
    CConfig& operator=(const CConfig&) = delete;
    ~CConfig();

    CCfgNode* RootNode() const { return m_root.get(); }
    // First child of node, next sibling of node, whatever their names; null if none.
    CCfgNode* FirstChild(CCfgNode* node) const;
    CCfgNode* NextSibling(CCfgNode* node) const;

private:
    friend class CConfigManager;
    CConfig() = default;
    bool Load(const std::string& file);

    std::unique_ptr<CCfgNode> m_root;
};

// A configuration opened by CConfigManager, with its folder.
class KIV_BASE_API CCfgHelp {
public:
    CCfgHelp();
    CCfgHelp(const CCfgHelp&) = delete;
    CCfgHelp& operator=(const CCfgHelp&) = delete;
    ~CCfgHelp();

    CCfgNode* RootNode() const;
    // The folder of the configuration's file, without a trailing backslash.
    std::string GetCurrentPath() const { return m_folder; }
    // First child or next sibling of node called name (any name when name is null); null if none.
    CCfgNode* FirstChild(CCfgNode* node, const char* name) const;
    CCfgNode* NextSiblingNode(CCfgNode* node, const char* name) const;
    CConfig* GetConfig() const { return m_config.get(); }

private:
    friend class CConfigManager;
    std::unique_ptr<CConfig> m_config;
    std::string m_folder;
};

class KIV_BASE_API CConfigManager {
public:
    static CConfigManager* GetInstance();
    // Opens the configuration stored under path into cfg; false when it is missing or unreadable.
    bool GetConfig(const char* path, CCfgHelp& cfg);

private:
    CConfigManager() = default;
};

}  // namespace kiv_base
