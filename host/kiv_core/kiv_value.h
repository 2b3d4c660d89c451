// The host's command values: an empty value, an untyped pointer or an integer. Values copy as
// they stand; a pointer value never owns what it points to.
#pragma once

namespace kiv_value {

class Value {
public:
    enum Type { EMPTY, POINTER, INT };

    Value() = default;
    explicit Value(void* p) : m_type(POINTER), m_pointer(p) {}
    explicit Value(int n) : m_type(INT), m_int(n) {}

    Type GetType() const { return m_type; }
    bool IsEmpty() const { return m_type == EMPTY; }
    // The held pointer; null when the value holds no pointer.
    void* GetPointer() const { return m_type == POINTER ? m_pointer : nullptr; }
    // The held integer; 0 when the value holds no integer.
    int GetInt() const { return m_type == INT ? m_int : 0; }

private:
    Type m_type = EMPTY;
    void* m_pointer = nullptr;
    int m_int = 0;
};

}  // namespace kiv_value
