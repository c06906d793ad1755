#include "core/inspector_fields.hpp"

namespace kolvar::inspection {

std::span<const FieldEntry> sequence_fields() {
    static constexpr FieldEntry entries[] = {
        KOLVAR_SCALAR(SeqMode),
        KOLVAR_SCALAR(SeqPhase),
        KOLVAR_SCALAR(SeqPos),
        KOLVAR_SCALAR(SeqCount),
        KOLVAR_SCALAR(SeqStdCount),
        KOLVAR_SCALAR(SeqStdDone),
        KOLVAR_SCALAR(SeqSamDone),
        KOLVAR_SCALAR(ListMode),
        KOLVAR_SCALAR(MasterName),
        KOLVAR_SCALAR(MasterPath),
        KOLVAR_SCALAR(MasterDir),
        KOLVAR_SCALAR(NextFile),
        KOLVAR_TABLE(MasterRecs, MaxMaster, LastMasterField),
        KOLVAR_LIST(FileNames, MaxListed),
        KOLVAR_LIST(FileOrdered, MaxListed),
        KOLVAR_LIST(FileTypes, MaxListed),
        KOLVAR_LIST(FileSerial, MaxListed),
        KOLVAR_LIST(DriftCF68, MaxListed),
        KOLVAR_LIST(DriftCF75, MaxListed),
        KOLVAR_LIST(DriftCF76, MaxListed),
        KOLVAR_LIST(DriftRej, MaxListed),
        KOLVAR_SCALAR(DriftMax),
        KOLVAR_SCALAR(DriftMin),
        KOLVAR_SCALAR(DriftStep),
        KOLVAR_SCALAR(DriftA68),
        KOLVAR_SCALAR(DriftB68),
        KOLVAR_SCALAR(DriftR68),
        KOLVAR_SCALAR(DriftA75),
        KOLVAR_SCALAR(DriftB75),
        KOLVAR_SCALAR(DriftR75),
        KOLVAR_SCALAR(DriftA76),
        KOLVAR_SCALAR(DriftB76),
        KOLVAR_SCALAR(DriftR76),
    };
    return entries;
}

}  // namespace kolvar::inspection
