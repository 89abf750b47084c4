create table cfr_text (section_id text, node_id text, node_text text, section_name text);
insert into cfr_text values ('173.202','n202','<p><b>§ 173.202</b> Non-bulk packagings for liquid hazardous materials in Packing Group II (sample text).</p>','Non-bulk packagings for liquid hazardous materials in Packing Group II');
insert into cfr_text values ('173.242','n242','<p><b>§ 173.242</b> Bulk packagings for certain medium hazard liquids and solids (sample text).</p>','Bulk packagings for certain medium hazard liquids and solids');
insert into cfr_text values ('173.304','n304','<p><b>§ 173.304</b> Filling of cylinders with liquefied compressed gases (sample text).</p>','Filling of cylinders with liquefied compressed gases');
insert into cfr_text values ('173.314','n314','<p><b>§ 173.314</b> Compressed gases in tank cars and multi-unit tank cars (sample text).</p>','Compressed gases in tank cars');
