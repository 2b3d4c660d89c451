#include "kiv_base/config.h"
#include "kiv_base/file_helpers.h"
#include <cstring>
#include <tinyxml.h>

namespace kiv_base {
namespace {

// Skips nodes whose names differ from name (a null name matches every node).
CCfgNode* Matching(const CConfig& config, CCfgNode* node, const char* name)
{
    while (node && name && std::strcmp(node->GetNodeName(), name) != 0) node = config.NextSibling(node);
    return node;
}

}  // namespace

CCfgNode::CCfgNode(const TiXmlElement& element, CCfgNode* parent, size_t index)
    : m_name(element.Value()), m_parent(parent), m_index(index)
{
    for (const TiXmlAttribute* a = element.FirstAttribute(); a; a = a->Next())
        m_attributes.emplace_back(a->Name(), a->Value());
    for (const TiXmlElement* child = element.FirstChildElement(); child; child = child->NextSiblingElement())
        m_children.emplace_back(new CCfgNode(*child, this, m_children.size()));
}

CCfgNode::~CCfgNode() = default;

void CCfgNode::GetAttributeNames(std::list<std::string>& names) const
{
    for (const auto& attribute : m_attributes) names.push_back(attribute.first);
}

const char* CCfgNode::GetAttribute(const char* name) const
{
    for (const auto& attribute : m_attributes) {
        if (attribute.first == name) return attribute.second.c_str();
    }
    return "";
}

CConfig::~CConfig() = default;

bool CConfig::Load(const std::string& file)
{
    TiXmlDocument doc;
    if (!doc.LoadFile(file.c_str())) return false;
    const TiXmlElement* root = doc.FirstChildElement();
    if (root) m_root.reset(new CCfgNode(*root, nullptr, 0));
    return true;
}

CCfgNode* CConfig::FirstChild(CCfgNode* node) const
{
    return node && !node->m_children.empty() ? node->m_children.front().get() : nullptr;
}

CCfgNode* CConfig::NextSibling(CCfgNode* node) const
{
    if (!node || !node->m_parent) return nullptr;
    const auto& siblings = node->m_parent->m_children;
    return node->m_index + 1 < siblings.size() ? siblings[node->m_index + 1].get() : nullptr;
}

CCfgHelp::CCfgHelp() = default;
CCfgHelp::~CCfgHelp() = default;

CCfgNode* CCfgHelp::RootNode() const { return m_config ? m_config->RootNode() : nullptr; }

CCfgNode* CCfgHelp::FirstChild(CCfgNode* node, const char* name) const
{
    return m_config ? Matching(*m_config, m_config->FirstChild(node), name) : nullptr;
}

CCfgNode* CCfgHelp::NextSiblingNode(CCfgNode* node, const char* name) const
{
    return m_config ? Matching(*m_config, m_config->NextSibling(node), name) : nullptr;
}

CConfigManager* CConfigManager::GetInstance()
{
    static CConfigManager instance;
    return &instance;
}

bool CConfigManager::GetConfig(const char* path, CCfgHelp& cfg)
{
    std::string exeDir;
    if (!path || !*path || !DirHelper::GetExeDir(exeDir)) return false;
    std::string file = exeDir + "cfg\\" + path + ".xml";
    std::unique_ptr<CConfig> config(new CConfig);
    if (!config->Load(file)) return false;
    cfg.m_config = std::move(config);
    cfg.m_folder = file.substr(0, file.find_last_of('\\'));
    return true;
}

}  // namespace kiv_base
