-- Titles of the part 173 packaging sections the shipping rows refer to, and
-- the vessel stowage categories. Section titles follow the regulation's
-- headings; the stowage wording is sample text.

insert into vessel_stowage values ('A','Stowage category A: on deck or under deck on cargo vessels and on passenger vessels (sample wording)');
insert into vessel_stowage values ('B','On deck or under deck on cargo vessels; on deck only on passenger vessels (sample wording)');
insert into vessel_stowage values ('C','On deck only, on cargo vessels and on passenger vessels (sample wording)');
insert into vessel_stowage values ('D','On deck only on cargo vessels; prohibited on passenger vessels (sample wording)');
insert into vessel_stowage values ('E','On deck or under deck on cargo vessels; prohibited on passenger vessels (sample wording)');
