-- Titles of the part 173 packaging sections the shipping rows refer to, and
-- the vessel stowage categories. Section titles follow the regulation's
-- headings; the stowage wording is sample text.
insert into hmt_sections values ('62','Specific packaging requirements for explosives');
insert into hmt_sections values ('185','Lithium cells and batteries');
insert into hmt_sections values ('201','Non-bulk packagings for liquid hazardous materials in Packing Group I');
insert into hmt_sections values ('202','Non-bulk packagings for liquid hazardous materials in Packing Group II');
insert into hmt_sections values ('203','Non-bulk packagings for liquid hazardous materials in Packing Group III');
insert into hmt_sections values ('211','Non-bulk packagings for solid hazardous materials in Packing Group I');
insert into hmt_sections values ('212','Non-bulk packagings for solid hazardous materials in Packing Group II');
insert into hmt_sections values ('213','Non-bulk packagings for solid hazardous materials in Packing Group III');
insert into hmt_sections values ('217','Carbon dioxide, solid (dry ice)');
insert into hmt_sections values ('227','Materials poisonous by inhalation, Division 6.1, Packing Group I, Hazard Zone A');
insert into hmt_sections values ('240','Bulk packaging for certain low hazard solid materials');
insert into hmt_sections values ('241','Bulk packagings for certain low hazard liquid and solid materials');
insert into hmt_sections values ('242','Bulk packagings for certain medium hazard liquids and solids, including solids with dual hazards');
insert into hmt_sections values ('243','Bulk packaging for certain high hazard liquids and dual hazard materials which pose a moderate hazard');
insert into hmt_sections values ('244','Bulk packaging for certain pyrophoric liquids, dangerous when wet materials, and poisonous liquids with inhalation hazards');
insert into hmt_sections values ('302','Filling of cylinders with nonliquefied (permanent) compressed gases');
insert into hmt_sections values ('304','Filling of cylinders with liquefied compressed gases');
insert into hmt_sections values ('314','Compressed gases in tank cars and multi-unit tank cars');
insert into hmt_sections values ('415','Authorized Type A packages');
insert into hmt_sections values ('427','Transport requirements for low specific activity (LSA) Class 7 materials and surface contaminated objects');

insert into vessel_stowage values ('A','Stowage category A: on deck or under deck on cargo vessels and on passenger vessels (sample wording)');
insert into vessel_stowage values ('B','On deck or under deck on cargo vessels; on deck only on passenger vessels (sample wording)');
insert into vessel_stowage values ('C','On deck only, on cargo vessels and on passenger vessels (sample wording)');
insert into vessel_stowage values ('D','On deck only on cargo vessels; prohibited on passenger vessels (sample wording)');
insert into vessel_stowage values ('E','On deck or under deck on cargo vessels; prohibited on passenger vessels (sample wording)');
