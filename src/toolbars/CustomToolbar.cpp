#include "CustomToolbar.h"

#include <algorithm>
#include <unordered_set>

IMPLEMENT_DYNAMIC(CustomToolbar, CToolBar)

namespace {

std::string Problem(const std::string& what)
{
    return "Ordering Toolbar Btns: " + what;
}

// What stands where on a bar: asked once and kept up, for the bar answers slowly.
class Places
{
public:
    explicit Places(const CToolBar& bar)
        : m_bar(bar)
        , m_ids(size_t(bar.GetCount()))
        , m_pictures(m_ids.size())
    {
        for (size_t place = 0; place < m_ids.size(); ++place)
        {
            TBBUTTON button = {};
            bar.SendMessage(TB_GETBUTTON, place, LPARAM(&button));
            m_ids[place] = unsigned(button.idCommand);
            m_pictures[place] = button.iBitmap;
        }
    }

    size_t Count() const { return m_ids.size(); }
    const std::vector<unsigned int>& Ids() const { return m_ids; }
    // Of several the first; beyond all places for none.
    size_t Find(unsigned int id) const
    {
        return size_t(std::ranges::find(m_ids, id) - m_ids.begin());
    }
    int PictureOf(unsigned int id) const { return m_pictures[Find(id)]; }

    bool SetCommand(size_t place, unsigned int id)
    {
        if (!m_bar.SendMessage(TB_SETCMDID, place, LPARAM(id)))
        {
            return false;
        }
        m_ids[place] = id;
        return true;
    }

    // Setting marks a button to be painted, the dearest part of all: a bar of mere texts needs
    // none.
    void SetPictureOf(unsigned int id, int picture)
    {
        const size_t place = Find(id);
        if (place >= Count() || m_pictures[place] == picture)
        {
            return;
        }
        TBBUTTONINFO info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_IMAGE;
        info.iImage = picture;
        m_bar.SendMessage(TB_SETBUTTONINFO, id, LPARAM(&info));
        m_pictures[place] = picture;
    }

private:
    const CToolBar& m_bar;
    std::vector<unsigned int> m_ids;
    std::vector<int> m_pictures;
};

} // namespace

bool CustomToolbar::OrderBtns(const std::vector<unsigned int>& order,
                              std::vector<std::string>& messages)
{
    bool allRight = true;
    const auto report = [&](const std::string& what) {
        messages.push_back(Problem(what));
        allRight = false;
    };

    Places places(*this);
    const size_t current = places.Count();
    if (order.size() != current)
    {
        report("Btn miscount.  Current = " + std::to_string(current) +
               ".  New = " + std::to_string(order.size()) + ".");
    }

    std::vector<unsigned int> targets;
    targets.reserve(order.size());
    const std::unordered_set<unsigned int> present(places.Ids().begin(), places.Ids().end());
    for (const unsigned int id : order)
    {
        if (present.contains(id))
        {
            targets.push_back(id);
        }
        else
        {
            report("Target Btn " + std::to_string(id) + " not found.");
        }
    }

    std::unordered_set<unsigned int> known(targets.begin(), targets.end());
    for (const unsigned int id : places.Ids())
    {
        if (known.insert(id).second)
        {
            targets.push_back(id);
            report("Existing Btn " + std::to_string(id) + " not in order list.");
        }
    }

    // Swapped, never shifted: what is displaced waits where the target was for its own turn.
    for (size_t place = 0; place < std::min(current, targets.size()); ++place)
    {
        const unsigned int target = targets[place];
        const size_t index = places.Find(target);
        if (index >= current || index == place)
        {
            continue;
        }
        const unsigned int displaced = places.Ids()[place];
        const int targetPicture = places.PictureOf(target);
        const int displacedPicture = places.PictureOf(displaced);
        const bool placed = places.SetCommand(place, target);
        const bool moved = places.SetCommand(index, displaced);
        places.SetPictureOf(displaced, displacedPicture);
        places.SetPictureOf(target, targetPicture);
        if (!placed || !moved)
        {
            report("SetButtonInfo failed for pair (" + std::to_string(displaced) + ", " +
                   std::to_string(target) + ")");
        }
    }
    return allRight;
}
