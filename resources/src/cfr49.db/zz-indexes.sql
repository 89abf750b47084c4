-- Regulation pages are looked up by section or by node.
create index cfr_text_section_id on cfr_text (section_id);
create index cfr_text_node_id on cfr_text (node_id);
