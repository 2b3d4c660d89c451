#include "kiv_skin/display/image_manager.h"
#include "kiv_skin/module.h"
#include "kiv_skin/style/color_text.h"
#include <cstring>
#include <tinyxml.h>

// One named image. A strip's own entry owns the image list; its cells share it and own a bitmap
// each, cut from the list when first asked for; a stand-alone image owns its bitmap.
struct ImageEntry {
    CString name;
    CString file;
    CImageList* imageList;
    CBitmap* bitmap;
    int index;  // kStripIndex, the cell's position in its strip, or kStandAloneIndex
    COLORREF transparentColor;
    SIZE cellSize;  // of a cell, for cutting it
};

namespace {

const int kStripIndex = -1;
const int kStandAloneIndex = -3;
// The colour at which ImageList_AddMasked cuts a strip, and the ground a cell is drawn on.
const COLORREF kStripMaskColor = 0x000000FF;
const COLORREF kCellGround = 0x00FFFFFF;

HBITMAP LoadBitmapFile(const CString& file)
{
    return static_cast<HBITMAP>(
        ::LoadImageA(kiv_skin::ModuleHandle(), file, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
}

// The executable's folder with exactly one trailing backslash.
CString ExeDirectory()
{
    char buffer[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, buffer, MAX_PATH);
    CString dir(buffer);
    dir = dir.Left(dir.ReverseFind('\\') + 1);
    dir.TrimRight('\\');
    return dir + '\\';
}

// Cell position of a strip as a bitmap of its own: drawn on white into a screen-compatible
// bitmap. Null when no bitmap of that size can be made.
CBitmap* CutCell(HIMAGELIST list, int position, SIZE size)
{
    int width = size.cx, height = size.cy;
    CClientDC screen(nullptr);
    CBitmap* cell = new CBitmap;
    if (!cell->CreateCompatibleBitmap(&screen, width, height)) {
        delete cell;
        return nullptr;
    }
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap* previous = memory.SelectObject(cell);
    memory.FillSolidRect(0, 0, width, height, kCellGround);
    ::ImageList_Draw(list, position, memory, 0, 0, ILD_NORMAL);
    memory.SelectObject(previous);
    memory.DeleteDC();
    // The list's own bitmaps stay selected into its contexts, so this does not free them.
    IMAGEINFO info = {};
    ::ImageList_GetImageInfo(list, position, &info);
    ::DeleteObject(info.hbmImage);
    ::DeleteObject(info.hbmMask);
    return cell;
}

}  // namespace

namespace kiv_skin {

COLORREF ParseMaskColor(const char* text) { return ColorFromMaskText(text); }

}  // namespace kiv_skin

ImageManager::ImageManager() = default;

ImageManager::~ImageManager() { _initData(); }

int ImageManager::loadImageConfig(const CString& path)
{
    if (path == m_strConfigPath) return 1;
    if (!m_strConfigPath.IsEmpty()) _initData();
    // A failed switch keeps the previous path although its entries are gone.
    TiXmlDocument doc;
    if (!doc.LoadFile(path)) return 0;
    m_strConfigPath = path;
    m_strBaseDir = ExeDirectory();
    TiXmlElement* root = doc.FirstChildElement();
    if (root) _getNode(root);
    return 1;
}

// A cell is cut on its first request and then kept, like every bitmap, until the next load.
const CBitmap* ImageManager::getBitmap(const CString& key) const
{
    ImageEntry* entry = _findEntry(key);
    if (!entry) return nullptr;
    if (!entry->bitmap && entry->index >= 0) entry->bitmap = CutCell(*entry->imageList, entry->index, entry->cellSize);
    return entry->bitmap;
}

const CImageList* ImageManager::getImageList(const CString& key) const
{
    const ImageEntry* entry = _findEntry(key);
    return entry && entry->index == kStripIndex ? entry->imageList : nullptr;
}

DWORD ImageManager::getTransparentColor(const CString& key) const
{
    const ImageEntry* entry = _findEntry(key);
    return entry ? entry->transparentColor : 0;
}

void ImageManager::_initData()
{
    for (auto& item : m_mapImages) {
        ImageEntry* entry = item.second;
        if (entry->index == kStripIndex) delete entry->imageList;
        delete entry->bitmap;
        delete entry;
    }
    m_mapImages.clear();
}

void ImageManager::_getNode(TiXmlElement* root)
{
    for (TiXmlElement* e = root->FirstChildElement(); e; e = e->NextSiblingElement()) {
        CString file = m_strBaseDir + e->Attribute("file");
        if (std::strcmp(e->Value(), "image") == 0) {
            _addImageToMap(file, e);
        } else if (std::strcmp(e->Value(), "imagelist") == 0) {
            int width = 0, height = 0;
            _getPosSize(e, &width, &height);
            if (width < 1 || height < 1) continue;
            HBITMAP strip = LoadBitmapFile(file);
            if (!strip) continue;
            _addListChildrenToMap(file, strip, GetColorFromString(e->Attribute("mask")), e, width, height);
        }
    }
}

void ImageManager::_addImageToMap(const CString& file, TiXmlElement* element)
{
    HBITMAP handle = LoadBitmapFile(file);
    if (!handle) return;
    CBitmap* bitmap = new CBitmap;
    bitmap->Attach(handle);
    ImageEntry* entry = new ImageEntry{element->Attribute("name"), file, nullptr, bitmap, kStandAloneIndex,
                                       GetColorFromString(element->Attribute("mask")), SIZE{}};
    if (!_insertEntry(entry)) {
        delete bitmap;
        delete entry;
    }
}

int ImageManager::_addListChildrenToMap(const CString& file, HBITMAP strip, DWORD mask, TiXmlElement* element,
                                        int width, int height)
{
    CImageList* list = new CImageList;
    _getImage(strip, element, list);
    ImageEntry* own = new ImageEntry{element->Attribute("name"), file, list, nullptr, kStripIndex, mask, SIZE{}};
    if (!_insertEntry(own)) {
        delete list;
        delete own;
        return 0;
    }
    int position = 0;
    for (TiXmlElement* child = element->FirstChildElement(); child; child = child->NextSiblingElement(), ++position) {
        if (std::strcmp(child->Value(), "image") != 0) continue;
        CString cellMask = child->Attribute("mask");
        ImageEntry* entry = new ImageEntry{child->Attribute("name"), file, list, nullptr, position,
                                           cellMask.IsEmpty() ? mask : GetColorFromString(cellMask),
                                           SIZE{width, height}};
        if (!_insertEntry(entry)) delete entry;
    }
    return 1;
}

// Cuts the strip into a new list of cells of the element's size; the strip is freed.
void ImageManager::_getImage(HBITMAP strip, TiXmlElement* element, CImageList* list)
{
    int width = 0, height = 0;
    _getPosSize(element, &width, &height);
    list->Create(width, height, ILC_COLOR, 4, 4);
    ::ImageList_AddMasked(*list, strip, kStripMaskColor);
    ::DeleteObject(strip);
}

void ImageManager::_getPosSize(TiXmlElement* element, int* width, int* height)
{
    element->Attribute("width", width);
    element->Attribute("height", height);
}

bool ImageManager::_insertEntry(ImageEntry* entry)
{
    return m_mapImages.emplace(entry->name, entry).second;
}

ImageEntry* ImageManager::_findEntry(const CString& key) const
{
    auto found = m_mapImages.find(key);
    return found == m_mapImages.end() ? nullptr : found->second;
}

DWORD ImageManager::GetColorFromString(const CString& text) { return kiv_skin::ParseMaskColor(text); }
