// Named bitmaps and image lists of a scheme, read from its XML image configuration: stand-alone
// images, strips cut into an image list, and cells of a strip kept as bitmaps of their own, each
// with a transparent colour.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>
#include <afxcmn.h>
#include <map>

class TiXmlElement;
struct ImageEntry;

namespace kiv_skin {

// The colour of a "mask" text: up to three decimal numbers (red, green, blue), each found by
// skipping every character that is not a digit; missing numbers count 0. A number above 255
// spills into the next colour's byte. An empty or null text gives 0.
KIV_SKIN_API COLORREF ParseMaskColor(const char* text);

}  // namespace kiv_skin

// Owns its entries and their bitmaps and lists; objects handed out stay valid until the next
// configuration is loaded or the manager is destroyed. Not copyable: the entries have one owner.
class KIV_SKIN_API ImageManager {
public:
    ImageManager();
    ~ImageManager();
    ImageManager(const ImageManager&) = delete;
    ImageManager& operator=(const ImageManager&) = delete;

    // 1 when the configuration is loaded (at once if it is the one already loaded), 0 when the
    // file cannot be parsed.
    int loadImageConfig(const CString& path);
    // The bitmap of a stand-alone image or a strip's cell; null for a strip and unknown keys.
    // A cell's bitmap is made on its first request; every bitmap stays until the next load.
    const CBitmap* getBitmap(const CString& key) const;
    // The image list of a strip; null for everything else.
    const CImageList* getImageList(const CString& key) const;
    // The "mask" colour of the key; 0 for unknown keys.
    DWORD getTransparentColor(const CString& key) const;

private:
    void _initData();
    void _getNode(TiXmlElement* root);
    void _addImageToMap(const CString& file, TiXmlElement* element);
    int _addListChildrenToMap(const CString& file, HBITMAP strip, DWORD mask, TiXmlElement* element, int width,
                              int height);
    void _getImage(HBITMAP strip, TiXmlElement* element, CImageList* list);
    void _getPosSize(TiXmlElement* element, int* width, int* height);
    bool _insertEntry(ImageEntry* entry);
    ImageEntry* _findEntry(const CString& key) const;
    static DWORD GetColorFromString(const CString& text);

    std::map<CString, ImageEntry*> m_mapImages;
    CString m_strConfigPath;
    CString m_strBaseDir;
};
