-- Every lookup selects by these columns; without an index each one scans its table.
create index iso_distances_un_id on iso_distances (un_id);
create index unid_npgid_un_number on unid_npgid (un_number);
create index npg_guides_id on npg_guides (id);
create index cameo_un_id on cameo (un_id);
create index wiser_text_un_id on wiser_text (un_id);
create index ghs_cas_no on ghs (cas_no);
create index nfpa_un_id on nfpa (un_id);
create index hmt_un_id on hmt (un_id);
create index hmt_sections_section_id on hmt_sections (section_id);
create index vessel_stowage_category on vessel_stowage (category);
create index dot_placards_un_number on dot_placards (un_number);
create index dot_classes_un_number on dot_classes (un_number);
create index large_spill_distances_un_id on large_spill_distances (un_id);
