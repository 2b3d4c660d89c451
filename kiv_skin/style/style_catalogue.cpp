#include "kiv_skin/style/style_catalogue.h"
#include "kiv_base/config.h"
#include "kiv_skin/module.h"
#include <list>
#include <string>

namespace kiv_skin {
namespace {

using kiv_base::CCfgHelp;
using kiv_base::CCfgNode;

std::atomic<StyleCatalogue*> g_catalogue{nullptr};

void DestroyCatalogue() { delete g_catalogue.exchange(nullptr); }

// Reads the "colorfont" and "img" children of a style node; a later child of a name wins.
void ReadStyleFiles(kiv_base::CConfig& config, CCfgNode* style, StyleEntry& entry)
{
    for (CCfgNode* child = config.FirstChild(style); child; child = config.NextSibling(child)) {
        CString file = child->GetAttribute("file");
        CString tag = child->GetNodeName();
        if (tag == "colorfont") entry.colorfont = file;
        else if (tag == "img") entry.img = file;
    }
}

}  // namespace

StyleCatalogue* StyleCatalogue::Instance()
{
    return CreateOnce(g_catalogue, StyleCatalogueLock(), [] { return new StyleCatalogue; }, DestroyCatalogue);
}

int StyleCatalogue::LoadCatalogue()
{
    m_entries.clear();
    CCfgHelp cfg;
    if (!kiv_base::CConfigManager::GetInstance()->GetConfig("kiv_skin\\style", cfg)) return 0;
    CCfgNode* root = cfg.RootNode();
    if (!root) return 0;
    CString base = CString(cfg.GetCurrentPath().c_str()) + "\\";
    for (CCfgNode* node = cfg.FirstChild(root, nullptr); node; node = cfg.NextSiblingNode(node, nullptr)) {
        std::list<std::string> names;
        node->GetAttributeNames(names);
        if (CString(node->GetNodeName()) != "style") continue;
        StyleEntry entry;
        // One scratch string serves all three attributes, so "default" takes whatever "name" or
        // "des" last put there: the default is the style's name only when "name" comes first.
        CString scratch;
        for (const std::string& name : names) {
            if (name == "name") {
                scratch = node->GetAttribute("name");
                entry.name = scratch;
            } else if (name == "default") {
                if (CString(node->GetAttribute("default")) == "1") m_strDefaultName = scratch;
            } else if (name == "des") {
                scratch = node->GetAttribute("des");
                entry.des = scratch;
            }
        }
        ReadStyleFiles(*cfg.GetConfig(), node, entry);
        if (entry.name.IsEmpty()) continue;
        entry.img = base + entry.img;
        entry.colorfont = base + entry.colorfont;
        m_entries.push_back(entry);
    }
    return 1;
}

int StyleCatalogue::FindStyle(CString& name, StyleEntry& out)
{
    for (StyleEntry& entry : m_entries) {
        name.Trim();
        entry.name.Trim();
        if (entry.name == name) {
            out = entry;
            return 1;
        }
    }
    return 0;
}

}  // namespace kiv_skin
